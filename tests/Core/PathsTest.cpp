#include "Misc/Paths.h"

#include "CoreHost/Project.h"
#include "HAL/PlatformProcess.h"
#include "Misc/App.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
struct FCase
{
	const TCHAR* Given;
	const TCHAR* Wanted;
};

template <typename FunctionType>
void Expect(const FCase& Case, const FunctionType& Function)
{
	const FString Result = Function(FString(Case.Given));
	EXPECT_TRUE(Result.Equals(Case.Wanted)) << TCHAR_TO_UTF8(Case.Given) << " gave " << TCHAR_TO_UTF8(*Result);
}

TEST(Paths, PartsOfAPath)
{
	const struct
	{
		const TCHAR *Path, *Directory, *Name, *Base, *Extension;
	} Cases[] = {
		{ u"/a/b.c/d.tar.gz", u"/a/b.c", u"d.tar.gz", u"d.tar", u"gz" },
		{ u"a\\b.txt", u"a", u"b.txt", u"b", u"txt" },
		{ u"/a.b/c", u"/a.b", u"c", u"c", u"" },
		{ u"/a/b/", u"/a/b", u"", u"", u"" },
		{ u".gitignore", u"", u".gitignore", u"", u"gitignore" },
		{ u"name.", u"", u"name.", u"name", u"" },
		{ u"", u"", u"", u"", u"" },
		{ u"/top", u"", u"top", u"top", u"" },
	};
	for (const auto& Case : Cases)
	{
		Expect({ Case.Path, Case.Directory }, [](const FString& Path) { return FPaths::GetPath(Path); });
		Expect({ Case.Path, Case.Name }, [](const FString& Path) { return FPaths::GetCleanFilename(Path); });
		Expect({ Case.Path, Case.Base }, [](const FString& Path) { return FPaths::GetBaseFilename(Path); });
		Expect({ Case.Path, Case.Extension }, [](const FString& Path) { return FPaths::GetExtension(Path); });
	}
	Expect({ u"/a.b/c.d", u"/a.b/c" }, [](const FString& Path) { return FPaths::GetBaseFilename(Path, false); });
	Expect({ u"/a.b/c.d", u".d" }, [](const FString& Path) { return FPaths::GetExtension(Path, true); });
	Expect({ u"/a.b/c", u"" }, [](const FString& Path) { return FPaths::GetExtension(Path, true); });
}

TEST(Paths, NormalizedDirectoryNames)
{
	const FCase Cases[] = { { u"a\\b\\", u"a/b" }, { u"a/b//", u"a/b//" }, { u"C:/", u"C:/" }, { u"/", u"/" }, { u"a", u"a" },
		{ u"", u"" } };
	for (const FCase& Case : Cases)
	{
		Expect(Case,
			[](FString Path)
			{
			FPaths::NormalizeDirectoryName(Path);
			return Path;
		});
	}
}

TEST(Paths, FullPaths)
{
	const FCase Cases[] = {
		{ u"Source/A.cpp", u"/p/Source/A.cpp" },
		{ u"./Source/./A.cpp", u"/p/Source/A.cpp" },
		{ u"Source\\..\\A.cpp", u"/p/A.cpp" },
		{ u"../other/A.cpp", u"/other/A.cpp" },
		{ u"../../../etc/passwd", u"/etc/passwd" },
		{ u"/abs//x///y", u"/abs/x/y" },
		{ u"/abs/../..", u"/" },
		{ u"Source/", u"/p/Source/" },
		{ u"Source/.", u"/p/Source" },
		{ u"", u"/p/" },
		{ u"..", u"/" },
		{ u"...", u"/p/..." },
		{ u"a..b/..c", u"/p/a..b/..c" },
		{ u"C:/x/../y", u"C:/y" },
	};
	for (const FCase& Case : Cases)
	{
		Expect(Case, [](const FString& Path) { return FPaths::ConvertRelativePathToFull(TEXT("/p/"), Path); });
	}
	Expect({ u"../../a", u"../a" }, [](const FString& Path) { return FPaths::ConvertRelativePathToFull(TEXT("b"), Path); });
	const FString Here = FPaths::ConvertRelativePathToFull(TEXT("x"));
	EXPECT_TRUE(Here.Equals(FString(FPlatformProcess::BaseDir()) + TEXT("x")));
	EXPECT_TRUE(Here.StartsWith(TEXT("/")));
}

TEST(Paths, Relative)
{
	for (const TCHAR* Path : { u"a", u"", u"../a", u"./a", u"1:/a", u"\\a" })
	{
		EXPECT_TRUE(FPaths::IsRelative(Path)) << TCHAR_TO_UTF8(Path);
	}
	for (const TCHAR* Path : { u"/", u"/a", u"\\\\server", u"C:", u"c:/a" })
	{
		EXPECT_FALSE(FPaths::IsRelative(Path)) << TCHAR_TO_UTF8(Path);
	}
}

TEST(Paths, CombineJoinsWithOneSlashAndNormalisesNothing)
{
	EXPECT_EQ(FPaths::Combine(TEXT("/a/"), FString(TEXT("b")), TEXT("../c")), FString(TEXT("/a/b/../c")));
	EXPECT_EQ(FPaths::Combine(TEXT("a"), TEXT("b"), TEXT("c.txt")), FString(TEXT("a/b/c.txt")));
	EXPECT_EQ(FPaths::Combine(TEXT("/p/"), TEXT("")), FString(TEXT("/p/")));
}

TEST(Paths, FollowTheProject)
{
	FTestDirectory Directory;
	FHostProject::Set(Directory / "My Größe/Game.uproject");
	EXPECT_TRUE(FPaths::ProjectDir().Equals((Directory / "My Größe") + TEXT("/")));
	EXPECT_TRUE(FPaths::ProjectContentDir().Equals(FPaths::ProjectDir() + TEXT("Content/")));
	EXPECT_TRUE(FPaths::ProjectLogDir().Equals(FPaths::ProjectDir() + TEXT("Saved/Logs/")));
	EXPECT_TRUE(FString(FApp::GetProjectName()).Equals(TEXT("Game")));
	FHostProject::Set(FString());
	EXPECT_FALSE(FPaths::IsProjectFilePathSet());
	EXPECT_FALSE(FApp::HasProjectName());
}

TEST(Paths, TempFilenamesAreNew)
{
	FTestDirectory Directory;
	const FString Name = FPaths::CreateTempFilename(*Directory.Path(), TEXT("Log_"), TEXT(".log"));
	EXPECT_TRUE(Name.StartsWith(Directory.Path() + TEXT("/Log_")));
	EXPECT_TRUE(Name.EndsWith(TEXT(".log")));
	EXPECT_FALSE(FPaths::FileExists(Name));
	EXPECT_NE(Name, FPaths::CreateTempFilename(*Directory.Path(), TEXT("Log_"), TEXT(".log")));
}
}
