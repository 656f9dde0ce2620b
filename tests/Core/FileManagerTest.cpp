#include "HAL/FileManager.h"

#include "HAL/PlatformFileManager.h"
#include "TestSupport.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

IPlatformFile& Files()
{
	return FPlatformFileManager::Get().GetPlatformFile();
}

TArray<FString> Find(const FString& Pattern, bool bFiles, bool bDirectories)
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *Pattern, bFiles, bDirectories);
	return Names;
}

TEST(FileManager, FindFilesListsOneDirectoryInNameOrder)
{
	FTestDirectory Directory;
	for (const char* Name : { "b.txt", "B.txt", "a.log", ".hidden", "z/inner.txt", "ä.txt", "c d/x" })
	{
		Directory.Write(Name);
	}
	fs::create_symlink(Directory.Native("z"), Directory.Native("link"));
	fs::create_symlink(Directory.Native("nothing"), Directory.Native("dangling"));
	ASSERT_EQ(::mkfifo(Directory.Native("pipe").c_str(), 0600), 0);

	using FNames = TArray<FString>;
	const FNames AllFiles = { TEXT(".hidden"), TEXT("B.txt"), TEXT("a.log"), TEXT("b.txt"), TEXT("ä.txt") };
	const FNames AllDirectories = { TEXT("c d"), TEXT("link"), TEXT("z") };
	const struct
	{
		const char* Pattern;
		bool bFiles, bDirectories;
		FNames Names;
	} Cases[] = {
		{ "*", true, false, AllFiles },
		{ "*.*", true, false, AllFiles },
		{ "*", false, true, AllDirectories },
		{ "*.TXT", true, false, { TEXT("B.txt"), TEXT("b.txt"), TEXT("ä.txt") } },
		{ "?.txt", true, true, { TEXT("B.txt"), TEXT("b.txt"), TEXT("ä.txt") } },
		{ "a.log", true, true, { TEXT("a.log") } },
		{ "*", false, false, {} },
		{ "missing/*", true, true, {} },
		{ "a.log/*", true, true, {} },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Find(Directory / Case.Pattern, Case.bFiles, Case.bDirectories), Case.Names) << Case.Pattern;
	}
	FNames Both = AllFiles;
	Both.Append(AllDirectories);
	EXPECT_EQ(Find(Directory / "*", true, true), Both);
}

TEST(FileManager, FindFilesRecursiveGivesAParentsFilesFirst)
{
	FTestDirectory Directory;
	for (const char* Name : { "b/2.txt", "b/a/3.txt", "a/1.txt", "z.txt", "a/1.log" })
	{
		Directory.Write(Name);
	}
	// A link back up and a link to itself, which must not make the walk endless: neither is listed.
	fs::create_directory_symlink(Directory.Path().IsEmpty() ? "" : Directory.Native(""), Directory.Native("b/up"));
	fs::create_symlink("self", Directory.Native("b/self"));

	const auto Search = [&Directory](const TCHAR* Pattern, bool bFiles, bool bDirectories)
	{
		TArray<FString> Found = { TEXT("old") };
		IFileManager::Get().FindFilesRecursive(Found, *Directory.Path(), Pattern, bFiles, bDirectories);
		FString Text;
		for (const FString& Path : Found)
		{
			EXPECT_TRUE(Path.StartsWith(Directory.Path() + TEXT("/")));
			Text += Path.RightChop(Directory.Path().Len() + 1) + TEXT(" ");
		}
		return Text;
	};
	EXPECT_EQ(Search(TEXT("*.txt"), true, false), FString(TEXT("z.txt a/1.txt b/2.txt b/a/3.txt ")));
	EXPECT_EQ(Search(TEXT("*"), false, true), FString(TEXT("a b b/a ")));
	EXPECT_EQ(Search(TEXT("*"), true, true), FString(TEXT("z.txt a b a/1.log a/1.txt b/2.txt b/a b/a/3.txt ")));
	TArray<FString> Kept = { TEXT("old") };
	IFileManager::Get().FindFilesRecursive(Kept, *(Directory.Path() + TEXT("/")), TEXT("1.*"), true, false, false);
	EXPECT_EQ(Kept.Num(), 3);
}

TEST(FileManager, PlatformFindFilesGoesByTheEndOfTheName)
{
	FTestDirectory Directory;
	for (const char* Name : { "2.log", "1.log", "1.log.bak", "sub/3.log" })
	{
		Directory.Write(Name);
	}
	TArray<FString> Found = { TEXT("old") };
	Files().FindFiles(Found, *Directory.Path(), TEXT(".log"));
	EXPECT_EQ(Found, (TArray<FString>{ Directory / "1.log", Directory / "2.log" }));
}

TEST(FileManager, ReadOnlyFilesAreNotDeletedUnlessTold)
{
	FTestDirectory Directory;
	Directory.Write("file");
	const FString Path = Directory / "file";
	ASSERT_TRUE(Files().SetReadOnly(*Path, true));
	EXPECT_TRUE(Files().IsReadOnly(*Path));
	FLogLines Log;
	EXPECT_FALSE(Files().DeleteFile(*Path));
	EXPECT_FALSE(IFileManager::Get().Delete(*Path, false, false, true));
	EXPECT_TRUE(Log.Lines.IsEmpty());
	EXPECT_FALSE(IFileManager::Get().Delete(*Path));
	EXPECT_TRUE(Log.HasLineWith(*Path));
	EXPECT_TRUE(IFileManager::Get().Delete(*Path, false, true));
	EXPECT_FALSE(Files().FileExists(*Path));
}

TEST(FileManager, DeletingWhatIsNotThere)
{
	FTestDirectory Directory;
	const FString Path = Directory / "missing";
	EXPECT_FALSE(Files().DeleteFile(*Path));
	EXPECT_FALSE(Files().DeleteFile(*Directory.Path()));
	EXPECT_TRUE(IFileManager::Get().Delete(*Path));
	EXPECT_FALSE(IFileManager::Get().Delete(*Path, true));
	EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*Path));
	EXPECT_FALSE(IFileManager::Get().DeleteDirectory(*Path, true));
}

TEST(FileManager, MoveAndCopy)
{
	FTestDirectory Directory;
	Directory.Write("script", "one");
	fs::permissions(Directory.Native("script"), fs::perms(0751));
	Directory.Write("other", "two");
	IFileManager& Manager = IFileManager::Get();

	EXPECT_EQ(Manager.Copy(*(Directory / "new/copy"), *(Directory / "script")), uint32(COPY_OK));
	EXPECT_EQ(Directory.Read("new/copy"), "one");
	EXPECT_EQ(fs::status(Directory.Native("new/copy")).permissions(), fs::perms(0751));
	EXPECT_EQ(Manager.Copy(*(Directory / "new/copy"), *(Directory / "other"), false), uint32(COPY_Fail));
	EXPECT_EQ(Manager.Copy(*(Directory / "none"), *(Directory / "missing")), uint32(COPY_Fail));
	EXPECT_FALSE(Files().FileExists(*(Directory / "none")));

	EXPECT_TRUE(Manager.Move(*(Directory / "new/copy"), *(Directory / "other")));
	EXPECT_EQ(Directory.Read("new/copy"), "two");
	EXPECT_FALSE(Files().FileExists(*(Directory / "other")));
	ASSERT_TRUE(Files().SetReadOnly(*(Directory / "new/copy"), true));
	EXPECT_FALSE(Manager.Move(*(Directory / "new/copy"), *(Directory / "script")));
	EXPECT_TRUE(Manager.Move(*(Directory / "new/copy"), *(Directory / "script"), true, true));
	EXPECT_EQ(Directory.Read("new/copy"), "one");
}

TEST(FileManager, DirectoriesAreMadeAndDeletedWithTheirTree)
{
	FTestDirectory Directory;
	Directory.Write("outside/kept");
	EXPECT_FALSE(Files().CreateDirectory(*(Directory / "a/b")));
	EXPECT_TRUE(Files().CreateDirectoryTree(*(Directory / "a/b/c/")));
	EXPECT_TRUE(Files().CreateDirectoryTree(*(Directory / "a/b/c")));
	EXPECT_FALSE(Files().CreateDirectoryTree(*(Directory / "outside/kept/below")));
	Directory.Write("a/file");
	fs::create_directory_symlink(Directory.Native("outside"), Directory.Native("a/link"));
	EXPECT_FALSE(IFileManager::Get().DeleteDirectory(*(Directory / "a")));
	EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*(Directory / "a"), true, true));
	EXPECT_FALSE(Files().DirectoryExists(*(Directory / "a")));
	EXPECT_TRUE(Files().FileExists(*(Directory / "outside/kept")));
}

TEST(FileManager, TimeStampsAreUtc)
{
	FTestDirectory Directory;
	Directory.Write("file");
	const FDateTime Stamp(2024, 2, 29, 23, 59, 58, 125);
	Files().SetTimeStamp(*(Directory / "file"), Stamp);
	EXPECT_EQ(Files().GetTimeStamp(*(Directory / "file")).GetTicks(), Stamp.GetTicks());
	EXPECT_EQ(Files().GetTimeStamp(*(Directory / "missing")).GetTicks(), FDateTime::MinValue().GetTicks());
	EXPECT_EQ(IFileManager::Get().FileSize(*(Directory / "missing")), -1);
}

TEST(FileManager, PathsOfTheOtherKindAndVeryLongOnes)
{
	FTestDirectory Directory;
	const std::string Long = "with blanks und Ümlauten/" + std::string(200, 'x') + "/" + std::string(100, 'y');
	EXPECT_TRUE(Files().CreateDirectoryTree(*(Directory / Long)));
	Directory.Write(Long + "/file");
	EXPECT_TRUE(Files().FileExists(*(Directory / Long).Replace(TEXT("/"), TEXT("\\")).Append(TEXT("\\file"))));
	EXPECT_EQ(Find((Directory / Long) + TEXT("/*"), true, true).Num(), 1);
}
}
