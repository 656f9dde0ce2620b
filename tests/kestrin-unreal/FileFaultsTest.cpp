#include "Agent/FileUtils.h"
#include "CoreHost/FileFaults.h"
#include "Modules/ModuleManager.h"
#include "Support/TestProject.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What happens to a file when its change fails or is cut off in the middle.

namespace
{
const char* const Copies = "Plugins/kestrin-unreal/Saved/Rewrites";

/** While it lives, the operation fails on files whose path holds the text. */
class FFault
{
public:
	FFault(EFileOperation Operation, const TCHAR* PathPart)
	{
		FFileFaults::SetHook(
			[Operation, PathPart](EFileOperation Each, const FString& Path) { return Each != Operation || !Path.Contains(PathPart); });
	}
	~FFault() { FFileFaults::SetHook({}); }
};

bool HasCopies(const FTestProject& Project)
{
	return Project.Has(Copies) && !std::filesystem::is_empty(Project.Folder() / Copies);
}

struct FChange
{
	const char* Name;
	FString (*Run)();
	const char* WriteError;
};

/** {DIR} stands for the project directory. */
const FChange Changes[] = {
	{ "replace", [] { return FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new")); },
		"Error: Failed to write new content to file: {DIR}a.txt" },
	{ "update",
		[] {
			FString Old;
			FString New;
			return FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("old"), TEXT("new"), Old, New);
		},
		"Error: Failed to write new content to file: a.txt" },
	{ "insert", [] { return FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("new")); },
		"Error: Failed to write modified content to file: a.txt" },
};

std::string WithDirectory(std::string Text, const FTestProject& Project)
{
	const SIZE_T Place = Text.find("{DIR}");
	return Place == std::string::npos ? Text : Text.replace(Place, 5, ToUtf8(Project.Dir()));
}

TEST(FileFaults, AFailedWritePutsTheOldBytesBack)
{
	for (const EFileOperation Operation : { EFileOperation::OpenWrite, EFileOperation::Write })
	{
		for (const FChange& Change : Changes)
		{
			SCOPED_TRACE(Change.Name);
			FTestProject Project;
			const std::string Before = "old \xE4 bytes\r\n";
			Project.Write("a.txt", Before);
			{
				const FFault Fault(Operation, TEXT("a.txt"));
				EXPECT_EQ(ToUtf8(Change.Run()), WithDirectory(Change.WriteError, Project));
			}
			EXPECT_EQ(Project.Read("a.txt"), Before);
			EXPECT_FALSE(HasCopies(Project));
		}
	}
}

TEST(FileFaults, AChangeWhoseCopyCannotBeMadeIsNotBegun)
{
	FTestProject Project;
	Project.Write("a.txt", "old");
	for (const EFileOperation Operation : { EFileOperation::CreateDirectory, EFileOperation::OpenWrite, EFileOperation::CopyFile })
	{
		const FFault Fault(Operation, TEXT("Rewrites"));
		EXPECT_EQ(ToUtf8(FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("x"))), "Error: Failed to delete existing file: a.txt");
		EXPECT_EQ(Project.Read("a.txt"), "old");
	}
}

TEST(FileFaults, AFullDiskInTheMiddleOfAChange)
{
	FTestProject Project;
	const std::string Before(3000, 'o');
	Project.Write("a.txt", Before);
	std::signal(SIGXFSZ, SIG_IGN);
	rlimit Kept;
	getrlimit(RLIMIT_FSIZE, &Kept);
	const rlimit Small{ 4096, Kept.rlim_max };
	setrlimit(RLIMIT_FSIZE, &Small);
	const FString Result = FFileUtils::ReplaceFile(TEXT("a.txt"), FString::ChrN(1000000, TEXT('n')));
	const FString Created = FFileUtils::CreateNewFileWithContent(TEXT("b.txt"), FString::ChrN(1000000, TEXT('n')));
	setrlimit(RLIMIT_FSIZE, &Kept);
	EXPECT_EQ(ToUtf8(Result), "Error: Failed to write new content to file: " + ToUtf8(Project.Dir()) + "a.txt");
	EXPECT_EQ(ToUtf8(Created), "Error: Failed to create file: b.txt");
	EXPECT_TRUE(Project.Read("a.txt") == Before);
	EXPECT_FALSE(HasCopies(Project));
}

TEST(FileFaults, AFileThatVanishesBeforeItsDeleteFails)
{
	FTestProject Project;
	Project.Write("a.txt", "old");
	FFileFaults::SetHook(
		[&Project](EFileOperation Operation, const FString& Path)
		{
		if (Operation == EFileOperation::DeleteFile && Path.EndsWith(TEXT("a.txt")))
		{
			std::filesystem::remove(Project.Folder() / "a.txt");
		}
		return true;
	});
	const FString Result = FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("x"));
	FFileFaults::SetHook({});
	EXPECT_EQ(ToUtf8(Result), "Error: Failed to delete existing file: a.txt");
	EXPECT_FALSE(Project.Has("a.txt"));
}

TEST(FileFaults, AFileThatCannotBeReadSaysSo)
{
	FTestProject Project;
	Project.Write("a.txt", "old");
	const FFault Fault(EFileOperation::OpenRead, TEXT("a.txt"));
	const std::string FullPath = ToUtf8(Project.Dir()) + "a.txt";
	FString Old;
	FString New;
	EXPECT_EQ(ToUtf8(FFileUtils::ReadFile(TEXT("a.txt"))), "Error: Failed to read file: " + FullPath);
	EXPECT_EQ(ToUtf8(FFileUtils::ReadFileLineRange(TEXT("a.txt"), 1, 2)), "Error: Failed to read file: " + FullPath);
	EXPECT_EQ(ToUtf8(FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("o"), TEXT("n"), Old, New)), "Error: Failed to read file: a.txt");
	EXPECT_EQ(ToUtf8(FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("n"))), "Error: Failed to read file: a.txt");
}

/** Runs a change in a process of its own, which is killed at the first such operation on the file. */
void RunAndKillAt(EFileOperation Operation, const TCHAR* PathPart)
{
	const pid_t Child = fork();
	if (Child == 0)
	{
		FFileFaults::SetHook(
			[Operation, PathPart](EFileOperation Each, const FString& Path)
			{
			if (Each == Operation && Path.Contains(PathPart))
			{
				raise(SIGKILL);
			}
			return true;
		});
		FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new"));
		_exit(0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	ASSERT_TRUE(WIFSIGNALED(Status)) << "the change ended before it could be cut off";
}

/** What the editor does at its start. */
void StartPlugin()
{
	FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
	ASSERT_NE(FModuleManager::Get().LoadModule("Kestrin"), nullptr);
}

void StopPlugin()
{
	FModuleManager::Get().UnloadModule("Kestrin");
}

TEST(FileFaults, AProcessKilledInTheMiddleLosesNothing)
{
	struct FCase
	{
		const char* Name;
		EFileOperation Operation;
		const TCHAR* PathPart;
	};
	const FCase Cases[] = {
		{ "while the copy is made", EFileOperation::CopyFile, TEXT("Rewrites") },
		{ "when the copy is there", EFileOperation::DeleteFile, TEXT("a.txt") },
		{ "between delete and write", EFileOperation::OpenWrite, TEXT("a.txt") },
		{ "while writing", EFileOperation::Write, TEXT("a.txt") },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FTestProject Project;
		const std::string Before = "old \xE4 bytes\r\n";
		Project.Write("a.txt", Before);
		RunAndKillAt(Case.Operation, Case.PathPart);
		StartPlugin();
		EXPECT_EQ(Project.Read("a.txt"), Before);
		EXPECT_FALSE(HasCopies(Project));
		StopPlugin();
	}
}
}
