#include "Agent/FileUtils.h"
#include "CoreHost/MainLoop.h"
#include "KestrinSettings.h"
#include "Misc/Paths.h"
#include "Support/TestProject.h"

#include <gtest/gtest.h>

namespace
{
std::string Tree(const FString& Directory = FPaths::ProjectDir())
{
	return ToUtf8(FFileUtils::GetSubDirectoryStructureAsJsonObject(Directory));
}

TEST(ProjectTree, HoldsFilesThenDirectoriesThatLeadToOne)
{
	FTestProject Project;
	for (const char* Path : { "Source/Game/Game.cpp", "Source/Game/foo.CPP", "Source/a.h", "Source/notes.txt", "Content/Maps/Start.umap",
			 "Docs/readme.md", "Docs/Deep/er/x.md", "Rebuilt/b.h", "MyEngineTools/c.h", "no_extension" })
	{
		Project.Write(Path, "");
	}
	EXPECT_EQ(Tree(),
		R"({"Game.uproject":"#","Content":{"Maps":{"Start.umap":"#"}},"MyEngineTools":{"c.h":"#"},"Rebuilt":{"b.h":"#"},)"
		R"("Source":{"a.h":"#","Game":{"Game.cpp":"#","foo.CPP":"#"}}})");
}

TEST(ProjectTree, ExcludedNamesAreWholeComponentsInAnyCase)
{
	struct FCase
	{
		const TCHAR* Entry;
		const char* Tree;
	};
	const FCase Cases[] = {
		{ TEXT("saved"), R"({"Game.uproject":"#","Content":{"Dev":{"b.h":"#"}}})" },
		{ TEXT(" /SAVED\\ "), R"({"Game.uproject":"#","Content":{"Dev":{"b.h":"#"}}})" },
		{ TEXT("Save"), R"({"Game.uproject":"#","Content":{"Dev":{"b.h":"#"}},"Saved":{"a.h":"#"}})" },
		{ TEXT("Content/Dev"), R"({"Game.uproject":"#","Content":{"Dev":{"b.h":"#"}},"Saved":{"a.h":"#"}})" },
		{ TEXT(""), R"({"Game.uproject":"#","Content":{"Dev":{"b.h":"#"}},"Saved":{"a.h":"#"}})" },
		{ TEXT("dev"), R"({"Game.uproject":"#","Saved":{"a.h":"#"}})" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(ToUtf8(Case.Entry));
		FTestProject Project;
		Project.Write("Saved/a.h", "");
		Project.Write("Content/Dev/b.h", "");
		GetMutableDefault<UKestrinSettings>()->ExcludedDirectories = { Case.Entry };
		EXPECT_EQ(Tree(), Case.Tree);
	}
}

TEST(ProjectTree, WhereTheProjectLiesDoesNotExcludeIt)
{
	FTestProject Project("Build/Saved/Game");
	Project.Write("Source/a.h", "");
	EXPECT_EQ(Tree(), R"({"Game.uproject":"#","Source":{"a.h":"#"}})");
	EXPECT_EQ(Tree(FPaths::ProjectDir() / TEXT(".")), R"({"Game.uproject":"#","Source":{"a.h":"#"}})");
}

TEST(ProjectTree, OfOneDirectory)
{
	FTestProject Project;
	Project.Write("Source/Game/a.h", "");
	Project.Write("Saved/b.h", "");
	EXPECT_EQ(Tree(FPaths::ProjectDir() / TEXT("Source")), R"({"Game":{"a.h":"#"}})");
	for (const TCHAR* Empty : { TEXT("Saved"), TEXT("Source/../Saved"), TEXT("None"), TEXT("Game.uproject") })
	{
		EXPECT_EQ(Tree(FPaths::ProjectDir() / Empty), "{}");
	}
}

TEST(ProjectTree, NothingBelowAnExcludedDirectoryIsLookedAt)
{
	FTestProject Project;
	Project.Write("Saved/Deep/a.h", "");
	std::filesystem::create_directory_symlink(Project.Folder() / "Nowhere", Project.Folder() / "Intermediate");
	std::filesystem::create_directory_symlink("..", Project.Folder() / "Saved/Loop");
	EXPECT_EQ(Tree(), R"({"Game.uproject":"#"})");
}

TEST(ProjectTree, TheLaterFormCallsBackInALaterFrame)
{
	FTestProject Project;
	FString Result;
	FFileUtils::GetSubDirectoryStructureAsJsonObjectAsync(
		FPaths::ProjectDir(), FOnDirectoryStructureReady::CreateLambda([&Result](const FString& Text) { Result = Text; }));
	EXPECT_TRUE(Result.IsEmpty());
	FMainLoop::RunUntil([&Result] { return !Result.IsEmpty(); }, 5.0);
	EXPECT_EQ(ToUtf8(Result), R"({"Game.uproject":"#"})");
}

TEST(ProjectList, HasRulesOfItsOwn)
{
	FTestProject Project;
	for (const char* Path : { "Source/b.CPP", "Source/A/x.txt", "source.csv", "Rebuild/b.h", "MyEngineTools/c.h", "B.py" })
	{
		Project.Write(Path, "");
	}
	TArray<FString> Paths = FFileUtils::GetDirectoryStructureAsList(FPaths::ProjectDir());
	EXPECT_EQ(Paths, (TArray<FString>{ TEXT("B.py"), TEXT("Game.uproject"), TEXT("source.csv"), TEXT("Source/b.CPP") }));
	EXPECT_EQ(FFileUtils::GetDirectoryStructureAsList(FPaths::ProjectDir() + TEXT("Source")), TArray<FString>{ TEXT("Source/b.CPP") });
	EXPECT_TRUE(FFileUtils::GetDirectoryStructureAsList(TEXT("/tmp")).IsEmpty());
	EXPECT_EQ(ToUtf8(FFileUtils::GetProjectStructureAsJsonList()),
		"[\n\t\"B.py\",\n\t\"Game.uproject\",\n\t\"source.csv\",\n\t\"Source/b.CPP\"\n]");
}
}
