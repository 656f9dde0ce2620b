#include "CoreHost/Project.h"
#include "GitFolder.h"
#include "ISourceControlModule.h"
#include "SourceControlHost/SourceControlProvider.h"
#include "SourceControlOperations.h"
#include "TestSupport.h"

namespace
{
/** A repository with one committed file, a.txt, in the open project's folder; git has not been run in a folder beside it. */
class GitProvider : public testing::Test
{
protected:
	GitProvider()
		: Git(Folder.Native("game"))
	{
		Begin();
	}
	~GitProvider() override { FHostProject::Set(TEXT("")); }

	void Begin()
	{
		std::filesystem::remove_all(Folder.Native("game"));
		Folder.Write("game/Game.uproject", "{}");
		Open("game");
		Git.Run("git init -q -b main; echo /Game.uproject > .git/info/exclude; echo one > a.txt; git add .; git commit -qm 1");
	}

	void Open(const std::string& Project) const { FHostProject::Set(Folder / (Project + "/Game.uproject")); }

	static ISourceControlProvider& Provider() { return ISourceControlModule::Get().GetProvider(); }

	FString File(const std::string& Name) const { return Folder / ("game/" + Name); }

	/** What is said of a file, as words. */
	std::string Describe(const std::string& Name) const
	{
		const FSourceControlStatePtr State = Provider().GetState(File(Name), EStateCacheUsage::Use);
		if (!State.IsValid())
		{
			return "none";
		}
		EXPECT_EQ(State->GetFilename(), File(Name));
		EXPECT_FALSE(State->CanCheckout());
		EXPECT_EQ(State->IsCheckedOut(), State->IsSourceControlled());
		std::string Words;
		for (const auto& [bIs, Word] :
			{ std::pair(State->IsSourceControlled(), "controlled "), { State->IsAdded(), "added " }, { State->IsDeleted(), "deleted " },
				{ State->IsModified(), "modified " }, { State->IsIgnored(), "ignored " }, { State->IsConflicted(), "conflicted " } })
		{
			Words += bIs ? Word : "";
		}
		return Words;
	}

	FTestDirectory Folder;
	FGitFolder Git;
};

const char* const Merge = "git checkout -qb other; echo two > a.txt; git commit -qam 2; git checkout -q main; echo three > a.txt; "
						  "git commit -qam 3; git merge -q other || true";
const char* const Submodule = "git init -q ../lib; cd ../lib; echo x > in.txt; git add .; git commit -qm 1; cd ../game; "
							  "git submodule -q add ../lib sub; git commit -qm 2; echo y > sub/new.txt";

TEST_F(GitProvider, IsChosenWhereTheProjectLiesInARepository)
{
	const struct
	{
		const char* Project;
		const char* Setup;
		FName Name;
		bool bAvailable;
	} Cases[] = {
		{ "game", "true", "Git", true },
		{ "game/Deep/Down", "true", "Git", true },
		{ "beside", "true", "None", false },
		{ "bare", "git init -q --bare ../bare", "Git", false },
		{ "tree", "git worktree add -q ../tree", "Git", true },
		{ "new", "git init -q ../new", "Git", true },
		{ "broken", "git init -q ../broken; echo '[core' > ../broken/.git/config", "Git", false },
		{ "future", "git init -q ../future; git -C ../future config core.repositoryformatversion 9", "Git", false },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Project);
		Git.Run(Case.Setup);
		Folder.Write(std::string(Case.Project) + "/Game.uproject", "{}");
		Open(Case.Project);
		const FLogLines Log;
		EXPECT_EQ(Provider().GetName(), Case.Name);
		EXPECT_EQ(Provider().IsEnabled(), Case.Name == "Git");
		EXPECT_EQ(ISourceControlModule::Get().IsEnabled(), Case.Name == "Git");
		EXPECT_EQ(Provider().IsAvailable(), Case.bAvailable);
		EXPECT_EQ(Log.HasLineWith(TEXT("LogSourceControl|Error|")), Case.Name == "Git" && !Case.bAvailable);
		EXPECT_EQ(Provider().GetState(File("a.txt"), EStateCacheUsage::Use).IsValid(), Case.bAvailable);
		EXPECT_EQ(Provider().Execute(ISourceControlOperation::Create<FUpdateStatus>(), File("a.txt")),
			Case.bAvailable ? ECommandResult::Succeeded : ECommandResult::Failed);
	}
}

TEST_F(GitProvider, TellsWhatGitSaysOfAFile)
{
	const struct
	{
		const char* Setup;
		const char* Name;
		const char* State;
	} Cases[] = {
		{ "true", "a.txt", "controlled " },
		{ "true", "x/../a.txt", "controlled " },
		{ "echo two > a.txt", "a.txt", "controlled modified " },
		{ "echo two > a.txt; git add a.txt", "a.txt", "controlled modified " },
		{ "rm a.txt", "a.txt", "controlled " },
		{ "git rm -q a.txt", "a.txt", "controlled deleted " },
		{ "git rm -q --cached a.txt", "a.txt", "controlled deleted " },
		{ "echo x > b.txt", "b.txt", "" },
		{ "echo x > b.txt; git add b.txt", "b.txt", "controlled added " },
		{ "echo x > b.txt; git add b.txt; rm b.txt", "b.txt", "controlled added " },
		{ "mkdir Saved; echo Saved > .gitignore; echo x > Saved/b.txt", "Saved/b.txt", "ignored " },
		{ "echo a.txt > .gitignore", "a.txt", "controlled " },
		{ "true", "none.txt", "" },
		{ "mkdir d; echo x > d/b.txt; git add .", "d", "" },
		{ "true", ".git/config", "" },
		{ "echo x > ../outside.txt", "../outside.txt", "" },
		{ "mkdir d; echo x > 'd/b c\xC3\xA4\xE6\xBC\xA2*[1].txt'; git add .", "d/b c\xC3\xA4\xE6\xBC\xA2*[1].txt", "controlled added " },
		{ "echo x > b1.txt; git add .", "b[0-9].txt", "" },
		{ "mkdir d; echo x > d/b.txt; ln -s d link; git add d", "link/b.txt", "controlled added " },
		{ "ln -s nowhere link; git add link", "link", "controlled added " },
		{ Merge, "a.txt", "controlled conflicted " },
		{ Submodule, "sub/in.txt", "" },
		{ Submodule, "sub/new.txt", "" },
		{ "rm -rf .git; git init -q; git add a.txt", "a.txt", "controlled added " },
		{ "touch .git/index.lock", "a.txt", "controlled " },
		{ "echo nonsense > .git/index", "a.txt", "none" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Setup) + " | " + Case.Name);
		Begin();
		std::filesystem::remove_all(Folder.Native("lib"));
		Git.Run(Case.Setup);
		EXPECT_EQ(Describe(Case.Name), Case.State);
	}
}

FSourceControlOperationRef Make(std::string_view Name)
{
	if (Name == "add")
	{
		return ISourceControlOperation::Create<FMarkForAdd>();
	}
	if (Name == "delete")
	{
		return ISourceControlOperation::Create<FDelete>();
	}
	if (Name == "revert")
	{
		return ISourceControlOperation::Create<FRevert>();
	}
	return ISourceControlOperation::Create<FCheckOut>();
}

TEST_F(GitProvider, StagesAndLeavesTheFilesAlone)
{
	const char* const Foreign = "the file does not belong to the repository";
	const char* const Uncontrolled = "the file is not under source control";
	const struct
	{
		const char* Setup;
		const char* Operation;
		const char* Name;
		/** A part of the error; empty when there is none. */
		const char* Error;
		/** What git tells afterwards. */
		const char* Status;
	} Cases[] = {
		{ "echo x > b.txt; echo y > c.txt", "add", "b.txt", "", "A  b.txt\n?? c.txt\n" },
		{ "echo two > a.txt", "add", "a.txt", "", "M  a.txt\n" },
		{ "true", "add", "a.txt", "", "" },
		{ "git rm -q a.txt; echo one > a.txt", "add", "a.txt", "", "" },
		{ "echo x > 'b \xC3\xA4\xE6\xBC\xA2.txt'", "add", "b \xC3\xA4\xE6\xBC\xA2.txt", "", "A  \"b \xC3\xA4\xE6\xBC\xA2.txt\"\n" },
		{ "echo x > 'b*'; echo y > bc", "add", "b*", "", "A  b*\n?? bc\n" },
		{ "mkdir d; ln -s d link; echo x > d/b.txt; echo link > .gitignore; git add .gitignore; git commit -qm 2", "add", "link/b.txt", "",
			"A  d/b.txt\n" },
		{ "rm -rf .git; git init -q", "add", "a.txt", "", "A  a.txt\n?? Game.uproject\n" },
		{ Merge, "add", "a.txt", "", "M  a.txt\n" },
		{ "echo x > b.txt; echo b.txt >> .git/info/exclude", "add", "b.txt", "the repository ignores the file", "" },
		{ "true", "add", "none.txt", "none.txt", "" },
		{ "mkdir d; echo x > d/b.txt", "add", "d", "d", "?? d/b.txt\n" },
		{ "true", "add", ".git/config", Foreign, "" },
		{ "echo x > ../outside.txt", "add", "../outside.txt", Foreign, "" },
		{ Submodule, "add", "sub/new.txt", Foreign, " M sub\n" },
		{ "git clone -q . inner; echo x > inner/b.txt", "add", "inner/b.txt", Foreign, "?? inner/\n" },
		{ "echo x > b.txt; touch .git/index.lock", "add", "b.txt", "the index is locked", "?? b.txt\n" },
		{ "echo x > b.txt; echo '[core' > .git/config", "add", "b.txt", "config", nullptr },
		{ "true", "delete", "a.txt", "", "D  a.txt\n?? a.txt\n" },
		{ "echo two > a.txt", "delete", "a.txt", "", "D  a.txt\n?? a.txt\n" },
		{ "rm a.txt", "delete", "a.txt", "", "D  a.txt\n" },
		{ "git rm -q --cached a.txt", "delete", "a.txt", "", "D  a.txt\n?? a.txt\n" },
		{ Merge, "delete", "a.txt", "", "D  a.txt\n?? a.txt\n" },
		{ "echo x > b.txt", "delete", "b.txt", Uncontrolled, "?? b.txt\n" },
		{ "true", "delete", "none.txt", Uncontrolled, "" },
		{ Submodule, "delete", "sub/in.txt", Uncontrolled, " M sub\n" },
		{ "touch .git/index.lock", "delete", "a.txt", "the index is locked", "" },
		{ "echo x > b.txt; echo y > c.txt; git add .", "revert", "b.txt", "", "A  c.txt\n?? b.txt\n" },
		{ "echo x > b.txt; git add .; rm b.txt", "revert", "b.txt", "", "" },
		{ "rm -rf .git; git init -q; git add .", "revert", "a.txt", "", "A  Game.uproject\n?? a.txt\n" },
		{ "echo two > a.txt", "revert", "a.txt", "only the addition of a file can be reverted", " M a.txt\n" },
		{ "true", "check out", "a.txt", "Operation 'CheckOut' not supported by source control provider 'Git'", "" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Setup) + " | " + Case.Operation + " " + Case.Name);
		Begin();
		std::filesystem::remove_all(Folder.Native("lib"));
		Git.Run(Case.Setup);
		const bool bWasThere = std::filesystem::exists(Folder.Native("game") / Case.Name);
		const FLogLines Log;
		const FSourceControlOperationRef Operation = Make(Case.Operation);
		const bool bFails = *Case.Error != 0;
		EXPECT_EQ(Provider().Execute(Operation, File(Case.Name)), bFails ? ECommandResult::Failed : ECommandResult::Succeeded);
		const TArray<FText>& Errors = Operation->GetResultInfo().ErrorMessages;
		ASSERT_EQ(Errors.Num(), bFails ? 1 : 0) << (Errors.IsEmpty() ? "" : TCHAR_TO_UTF8(*Errors[0].ToString()));
		if (bFails)
		{
			EXPECT_TRUE(Errors[0].ToString().Contains(UTF8_TO_TCHAR(Case.Error))) << TCHAR_TO_UTF8(*Errors[0].ToString());
			EXPECT_TRUE(Log.HasLineWith(*(TEXT("LogSourceControl|Error|") + Errors[0].ToString())));
		}
		if (Case.Status)
		{
			EXPECT_EQ(Git.Run("rm -f .git/index.lock") + Git.Status(), Case.Status);
		}
		EXPECT_EQ(std::filesystem::exists(Folder.Native("game") / Case.Name), bWasThere);
	}
}

TEST_F(GitProvider, DoesItToAllFilesOrToNone)
{
	Git.Run("echo x > b.txt; echo y > c.txt; echo z > d.txt; git add d.txt");
	const auto Add = [](const TArray<FString>& Files) { return Provider().Execute(Make("add"), Files); };
	EXPECT_EQ(Add({ File("b.txt"), File("none.txt"), File("c.txt") }), ECommandResult::Failed);
	EXPECT_EQ(Git.Status(), "A  d.txt\n?? b.txt\n?? c.txt\n");
	EXPECT_EQ(Add({ File("b.txt"), File("c.txt") }), ECommandResult::Succeeded);
	EXPECT_EQ(Git.Status(), "A  b.txt\nA  c.txt\nA  d.txt\n");
	EXPECT_EQ(Git.Run("git diff --cached --stat=80 | tail -1"), " 3 files changed, 3 insertions(+)\n") << "their content is staged, too";
}
}
