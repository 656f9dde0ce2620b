#include "Agent/FileUtils.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/FileFaults.h"
#include "GitFolder.h"
#include "Modules/ModuleManager.h"
#include "SourceControlHost/SourceControlProvider.h"
#include "Support/Conversation.h"
#include "TestSupport.h"

#include <sys/stat.h>

// What source control is told of files: first by a provider with locks and faults of its own, then by git on real repositories.

namespace
{
/** A state is the letters of what it answers true to: (c)an check out, (s)ource controlled, (a)dded. "-" is no state at all. */
class FScriptedState final : public ISourceControlState
{
public:
	FScriptedState(const FString& InFilename, std::string_view InLetters)
		: Filename(InFilename)
		, Letters(InLetters)
	{
	}

	const FString& GetFilename() const override { return Filename; }
	bool CanCheckout() const override { return Has('c'); }
	bool IsCheckedOut() const override { return !Has('c'); }
	bool IsSourceControlled() const override { return Has('s'); }
	bool IsAdded() const override { return Has('a'); }
	bool IsDeleted() const override { return false; }
	bool IsModified() const override { return false; }
	bool IsIgnored() const override { return false; }
	bool IsConflicted() const override { return false; }

private:
	bool Has(char Letter) const { return Letters.find(Letter) != std::string::npos; }

	const FString Filename;
	const std::string Letters;
};

class FScriptedProvider final : public ISourceControlProvider
{
public:
	const FName& GetName() const override { return Name; }
	bool IsEnabled() const override { return bEnabled; }
	bool IsAvailable() const override { return bAvailable; }
	ECommandResult::Type GetState(
		const TArray<FString>& InFiles, TArray<FSourceControlStateRef>& OutState, EStateCacheUsage::Type Usage) override
	{
		EXPECT_EQ(Usage, EStateCacheUsage::Use);
		Calls += "GetState ";
		if (State == "-")
		{
			return ECommandResult::Failed;
		}
		OutState.Add(MakeShared<FScriptedState>(InFiles[0], State));
		return ECommandResult::Succeeded;
	}
	ECommandResult::Type Execute(
		const FSourceControlOperationRef& Operation, const TArray<FString>& InFiles, EConcurrency::Type Concurrency) override
	{
		EXPECT_EQ(Concurrency, EConcurrency::Synchronous);
		EXPECT_EQ(InFiles.Num(), 1);
		const std::string Called = ToUtf8(Operation->GetName().ToString());
		Calls += Called + " ";
		Files.insert(ToUtf8(InFiles[0]));
		return Failing.find(Called) == std::string::npos ? ECommandResult::Succeeded : ECommandResult::Failed;
	}

	const FName Name = "Scripted";
	bool bEnabled = true;
	bool bAvailable = true;
	std::string State = "s";
	/** Names of operations. */
	std::string Failing;

	/** The names of what was called, a blank behind each. */
	std::string Calls;
	std::set<std::string> Files;
};

using FBridge = bool (*)(const FString&);
const FBridge Add = &FFileUtils::AddNewFileToSourceControl;
const FBridge CheckOut = &FFileUtils::CheckoutFileFromSourceControl;
const FBridge Remove = [](const FString& File) { return FFileUtils::RemoveFileFromSourceControl(File, false); };
const FBridge RemoveWithFile = [](const FString& File) { return FFileUtils::RemoveFileFromSourceControl(File, true); };

/** The lines of the category, a line end behind each. */
std::string LinesOf(const FLogLines& Log, const TCHAR* Category)
{
	std::string Text;
	for (const FString& Line : Log.Lines)
	{
		if (Line.StartsWith(FString(Category) + TEXT("|")))
		{
			Text += ToUtf8(Line) + "\n";
		}
	}
	return Text;
}

TEST(SourceControl, DoesWhatAFilesStateAsksFor)
{
	const std::string UpdateAndGet = "UpdateStatus GetState ";
	const struct
	{
		FBridge Run;
		const char* State;
		const char* Failing;
		bool bResult;
		std::string Calls;
		/** {F} stands for the file's path. */
		std::string Log;
		bool bFileStays;
	} Cases[] = {
		{ Add, "", "", true, "MarkForAdd ", "Display|Successfully added {F} to source control", true },
		{ Add, "", "MarkForAdd", false, "MarkForAdd ", "Error|Failed to add {F} to source control", true },
		{ CheckOut, "cs", "", true, UpdateAndGet + "CheckOut ", "", true },
		{ CheckOut, "cs", "CheckOut", false, UpdateAndGet + "CheckOut ", "", true },
		{ CheckOut, "cs", "UpdateStatus", true, UpdateAndGet + "CheckOut ", "", true },
		{ CheckOut, "-", "", false, UpdateAndGet, "Warning|Could not get file state for {F}", true },
		{ CheckOut, "", "", false, UpdateAndGet, "Warning|File {F} is not under source control", true },
		{ CheckOut, "s", "", false, UpdateAndGet, "Warning|File {F} cannot be checked out (it may already be checked out)", true },
		{ Remove, "-", "", false, UpdateAndGet, "Error|Could not determine source control status for {F}", true },
		{ RemoveWithFile, "-", "", false, UpdateAndGet, "Error|Could not determine source control status for {F}", true },
		{ Remove, "sa", "", true, UpdateAndGet + "Revert ", "Display|Successfully reverted addition of {F} from source control", true },
		{ Remove, "csa", "Revert", false, UpdateAndGet + "Revert ", "Error|Failed to revert addition of {F} from source control", true },
		{ RemoveWithFile, "a", "Revert", false, UpdateAndGet + "Revert ", "Error|Failed to revert addition of {F} from source control",
			true },
		{ RemoveWithFile, "sa", "", true, UpdateAndGet + "Revert ",
			"Display|Successfully reverted addition of {F} from source control\nLogTemp|Display|Deleted {F} from disk", false },
		{ Remove, "c", "", true, UpdateAndGet, "Display|File {F} is not under source control, nothing to remove", true },
		{ RemoveWithFile, "", "", true, UpdateAndGet,
			"Display|File {F} is not under source control, nothing to remove\nLogTemp|Display|Deleted {F} from disk", false },
		{ Remove, "s", "", true, UpdateAndGet + "Delete ", "Display|Successfully marked {F} for deletion in source control", true },
		{ Remove, "cs", "CheckOut", true, UpdateAndGet + "CheckOut Delete ",
			"Display|Successfully marked {F} for deletion in source control", true },
		{ RemoveWithFile, "cs", "", true, UpdateAndGet + "CheckOut Delete ",
			"Display|Successfully marked {F} for deletion in source control\nLogTemp|Display|Deleted {F} from disk", false },
		{ RemoveWithFile, "s", "Delete", false, UpdateAndGet + "Delete ", "Error|Failed to mark {F} for deletion in source control", true },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.State) + " | " + Case.Failing + " | " + Case.Log);
		FTestProject Project;
		Project.Write("a.txt", "text");
		const FString File = Project.Dir() + TEXT("a.txt");
		FScriptedProvider Provider;
		const FHostSourceControlProvider Scope(Provider);
		Provider.State = Case.State;
		Provider.Failing = Case.Failing;
		const FLogLines Log;
		EXPECT_EQ(Case.Run(File), Case.bResult);
		EXPECT_EQ(Provider.Calls, Case.Calls);
		EXPECT_EQ(Provider.Files, std::set{ ToUtf8(File) });
		std::string Expected = Case.Log.empty() ? "" : "LogTemp|" + Case.Log + "\n";
		for (SIZE_T Place = Expected.find("{F}"); Place != std::string::npos; Place = Expected.find("{F}"))
		{
			Expected.replace(Place, 3, ToUtf8(File));
		}
		EXPECT_EQ(LinesOf(Log, TEXT("LogTemp")), Expected);
		EXPECT_EQ(Project.Has("a.txt"), Case.bFileStays);
	}
}

TEST(SourceControl, ThatIsNotThereIsAWarningAndNoMore)
{
	FTestProject Project;
	Project.Write("a.txt", "text");
	const auto ExpectNothing = [&Project](const char* What)
	{
		SCOPED_TRACE(What);
		const FLogLines Log;
		for (const FBridge Each : { Add, CheckOut, RemoveWithFile })
		{
			EXPECT_FALSE(Each(Project.Dir() + TEXT("a.txt")));
		}
		const std::string Line = "LogTemp|Warning|Source control is not available\n";
		EXPECT_EQ(LinesOf(Log, TEXT("LogTemp")), Line + Line + Line);
		EXPECT_TRUE(Project.Has("a.txt"));
	};
	ExpectNothing("no repository");
	FScriptedProvider Provider;
	const FHostSourceControlProvider Scope(Provider);
	Provider.bEnabled = false;
	ExpectNothing("not enabled");
	Provider.bEnabled = true;
	Provider.bAvailable = false;
	ExpectNothing("not available");
	EXPECT_EQ(Provider.Calls, "");
}

TEST(SourceControl, AFileThatCannotBeDeletedIsAWarning)
{
	FTestProject Project;
	Project.Write("a.txt", "text");
	chmod((Project.Folder() / "a.txt").c_str(), 0444);
	FScriptedProvider Provider;
	const FHostSourceControlProvider Scope(Provider);
	const FLogLines Log;
	EXPECT_TRUE(RemoveWithFile(Project.Dir() + TEXT("a.txt"))) << "source control has done its part";
	EXPECT_TRUE(Log.HasLineWith(*(TEXT("LogTemp|Warning|Failed to delete ") + Project.Dir() + TEXT("a.txt from disk"))));
}

/** Each file operation asks for its one thing, at its time: the file is as Before says when source control is called. */
TEST(SourceControl, IsAskedBeforeAChangeAndAfterACreation)
{
	FString Old;
	FString New;
	const struct
	{
		const char* Name;
		const char* Before;
		TFunction<void()> Run;
		const char* Calls;
	} Cases[] = {
		{ "create", nullptr, [] { FFileUtils::CreateNewFileWithContent(TEXT("a.txt"), TEXT("new")); }, "MarkForAdd " },
		{ "create over", "1", [] { FFileUtils::CreateNewFileWithContent(TEXT("a.txt"), TEXT("new")); }, "MarkForAdd " },
		{ "create a folder", nullptr, [] { FFileUtils::CreateNewFileWithContent(TEXT("."), TEXT("new")); }, "" },
		{ "replace", "1", [] { FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new")); }, "UpdateStatus GetState CheckOut " },
		{ "replace nothing", nullptr, [] { FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new")); }, "" },
		{ "update", "1", [&] { FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("1"), TEXT("2"), Old, New); },
			"UpdateStatus GetState CheckOut " },
		{ "update what is not there", "1", [&] { FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("3"), TEXT("2"), Old, New); }, "" },
		{ "update without a replacement", "1", [&] { FFileUtils::UpdateFile(TEXT("a.txt"), TEXT(""), TEXT("2"), Old, New); },
			"UpdateStatus GetState CheckOut " },
		{ "insert", "1", [] { FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("new")); }, "UpdateStatus GetState CheckOut " },
		{ "replace a line", "1", [] { FFileUtils::ReplaceLineInFile(TEXT("a.txt"), 1, TEXT("new")); }, "UpdateStatus GetState CheckOut " },
		{ "replace no line", "1", [] { FFileUtils::ReplaceLineInFile(TEXT("a.txt"), 2, TEXT("new")); }, "" },
		{ "delete", "1", [] { FFileUtils::DeleteFile(TEXT("a.txt")); }, "UpdateStatus GetState CheckOut Delete " },
		{ "delete nothing", nullptr, [] { FFileUtils::DeleteFile(TEXT("a.txt")); }, "UpdateStatus GetState CheckOut Delete " },
		{ "read", "1", [] { FFileUtils::ReadFile(TEXT("a.txt")); }, "" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FTestProject Project;
		if (Case.Before)
		{
			Project.Write("a.txt", Case.Before);
		}
		FScriptedProvider Provider;
		const FHostSourceControlProvider Scope(Provider);
		Provider.State = "cs";
		std::string CallsAtDelete = "none";
		FFileFaults::SetHook(
			[&](EFileOperation Operation, const FString& Path)
			{
			if (Operation == EFileOperation::DeleteFile && Path.EndsWith(TEXT("/a.txt")))
			{
				CallsAtDelete = Provider.Calls;
			}
			return true;
		});
		Case.Run();
		FFileFaults::SetHook({});
		EXPECT_EQ(Provider.Calls, Case.Calls);
		EXPECT_TRUE(CallsAtDelete == "none" || CallsAtDelete == Case.Calls) << CallsAtDelete;
		if (*Case.Calls)
		{
			EXPECT_EQ(Provider.Files, std::set{ ToUtf8(Project.Dir()) + "a.txt" });
		}
	}
}

/** A conversation in a repository with committed files. */
class SourceControlWithGit : public testing::Test
{
protected:
	SourceControlWithGit()
		: Git(Talk.Project.Folder())
	{
		Talk.Project.Write("Source/Game/Hero.h", "int Hero;\n");
		Talk.Project.Write("Source/Game/Foe.h", "int Foe;\n");
		// Content: the compile that an undo starts saves what other tests have left in memory.
		Git.Run("git init -q; printf 'Content/\\nLogs/\\nSaved/\\nEngine/\\n' > .git/info/exclude; git add .; git commit -qm 1");
	}

	FConversation Talk{ "Kid's \xC3\x84pfel" };
	FGitFolder Git;
};

TEST_F(SourceControlWithGit, StatusAfterEachFileTool)
{
	const struct
	{
		const char* Tool;
		const char* Input;
		const char* Status;
	} Cases[] = {
		{ "create_file", R"({"path":"Source/Game/New File.h","file_text":"int New;\n"})", "A  \"Source/Game/New File.h\"\n" },
		{ "create_cpp_file", R"({"filepath":"Source/Game","filename":"\u00fc.cpp","contents":"int U;\n"})",
			"A  Source/Game/\xC3\xBC.cpp\n" },
		{ "create_file", R"({"path":"Source/Game/Hero.h","file_text":"int Other;\n"})", " M Source/Game/Hero.h\n" },
		{ "update_and_replace_cpp_file", R"({"filepath":"Source/Game","filename":"Hero.h","contents":"x"})", " M Source/Game/Hero.h\n" },
		{ "update_file", R"({"path":"Source/Game/Hero.h","old_string":"Hero","new_string":"Foe"})", " M Source/Game/Hero.h\n" },
		{ "insert_into_file", R"({"path":"Source/Game/Hero.h","insert_line":0,"new_string":"// x"})", " M Source/Game/Hero.h\n" },
		{ "delete_file", R"({"path":"Source/Game/Hero.h"})", "D  Source/Game/Hero.h\n" },
		{ "delete_cpp_file", R"({"filepath":"Source/Game","filename":"Hero.h"})", "D  Source/Game/Hero.h\n" },
		{ "delete_file", R"({"path":"Source/Game/None.h"})", "" },
		{ "create_file", R"({"path":"Saved/x.txt","file_text":"ignored"})", "" },
		{ "create_file", R"({"path":"../outside.txt","file_text":"outside"})", "" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Tool) + Case.Input);
		Talk.RunTool(Case.Tool, Case.Input);
		EXPECT_EQ(Git.Status(), Case.Status);
		Git.Run("git reset -q --hard; git clean -qfd");
	}
}

TEST_F(SourceControlWithGit, AFileThatCameAndWentLeavesNoTrace)
{
	Talk.RunTool("create_file", R"({"path":"Source/New.h","file_text":"int New;\n"})");
	Talk.RunTool("update_file", R"({"path":"Source/New.h","old_string":"New","new_string":"Newer"})");
	EXPECT_EQ(Git.Status(), "AM Source/New.h\n");
	Talk.RunTool("delete_file", R"({"path":"Source/New.h"})");
	EXPECT_EQ(Git.Status(), "");
	Talk.RunTool("delete_file", R"({"path":"Source/Game/Foe.h"})");
	Talk.RunTool("create_file", R"({"path":"Source/Game/Foe.h","file_text":"int Foe;\n"})");
	EXPECT_EQ(Git.Status(), "");
}

TEST_F(SourceControlWithGit, UndoAndRedoTellItToo)
{
	Talk.StartAndFinishWith(
		R"({"type":"tool_use","id":"1","name":"create_file","input":{"path":"Source/New.h","file_text":"int New;\n"}},)"
		R"({"type":"tool_use","id":"2","name":"delete_file","input":{"path":"Source/Game/Foe.h"}},)"
		R"({"type":"tool_use","id":"3","name":"update_file","input":{"path":"Source/Game/Hero.h","old_string":"Hero","new_string":"Me"}})",
		true);
	const std::string Done = "D  Source/Game/Foe.h\n M Source/Game/Hero.h\nA  Source/New.h\n";
	EXPECT_EQ(Git.Status(), Done);
	FKestrinInterface::Get().EndRequest(TEXT(""));
	FKestrinInterface::Get().UndoLastOperation();
	EXPECT_EQ(
		Git.Run("git diff --ignore-all-space --stat HEAD"), " Source/Game/Hero.h | 2 +-\n 1 file changed, 1 insertion(+), 1 deletion(-)\n")
		<< "but for the byte order mark all is as committed";
	EXPECT_EQ(Git.Run("git diff --cached --name-status"), "");
	FKestrinInterface::Get().RedoLastOperation();
	EXPECT_EQ(Git.Status(), Done);
}

TEST_F(SourceControlWithGit, ALockedRepositoryStopsNoTool)
{
	Git.Run("touch .git/index.lock");
	const FLogLines Log;
	EXPECT_EQ(Talk.RunTool("create_file", R"({"path":"New.h","file_text":"x"})"), "File created successfully: New.h");
	EXPECT_EQ(Talk.RunTool("delete_file", R"({"path":"Source/Game/Foe.h"})"), "Successfully deleted file: Source/Game/Foe.h");
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogTemp|Error|Failed to add ")));
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogTemp|Error|Failed to mark ")));
	EXPECT_EQ(Git.Run("rm .git/index.lock") + Git.Status(), " D Source/Game/Foe.h\n?? New.h\n");
}
}
