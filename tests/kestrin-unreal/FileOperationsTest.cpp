#include "Agent/FileUtils.h"
#include "Support/TestProject.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{
const std::string Bom = "\xEF\xBB\xBF";

struct FCase
{
	const char* Name;
	/** The file a.txt before; null for none. */
	const char* Before;
	FString (*Run)();
	/** {DIR} stands for the project directory. */
	std::string Result;
	/** The file a.txt after. */
	std::string After;
};

std::string WithDirectory(std::string Text, const FTestProject& Project)
{
	const SIZE_T Place = Text.find("{DIR}");
	return Place == std::string::npos ? Text : Text.replace(Place, 5, ToUtf8(Project.Dir()));
}

template <SIZE_T Count>
void RunAll(const FCase (&Cases)[Count])
{
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FTestProject Project;
		if (Case.Before)
		{
			Project.Write("a.txt", Case.Before);
		}
		EXPECT_EQ(ToUtf8(Case.Run()), WithDirectory(Case.Result, Project));
		EXPECT_EQ(Project.Read("a.txt"), Case.After);
	}
}

const char* const TenLines = "1\n2\r\n3\r4\n5\n6\n7\n8\n9\n10\n";

template <int32 Start, int32 End>
FString ReadRange()
{
	return FFileUtils::ReadFileLineRange(TEXT("a.txt"), Start, End);
}

TEST(FileOperations, ReadingByLines)
{
	const FCase Cases[] = {
		{ "inside", TenLines, &ReadRange<3, 5>, "3\n4\n5", TenLines },
		{ "from before the first", TenLines, &ReadRange<-4, 2>, "1\n2", TenLines },
		{ "beyond the last", TenLines, &ReadRange<9, 99>, "9\n10", TenLines },
		{ "to the end", TenLines, &ReadRange<9, -1>, "9\n10", TenLines },
		{ "behind the end", TenLines, &ReadRange<11, 12>,
			"Error: Invalid line range for file: a.txt (StartLine: 11, EndLine: 10, Total Lines: 10)", TenLines },
		{ "an end of 0", TenLines, &ReadRange<1, 0>,
			"Error: Invalid line range for file: a.txt (StartLine: 1, EndLine: 0, Total Lines: 10)", TenLines },
		{ "an end below", TenLines, &ReadRange<5, -7>,
			"Error: Invalid line range for file: a.txt (StartLine: 5, EndLine: -7, Total Lines: 10)", TenLines },
		{ "backwards", TenLines, &ReadRange<5, 4>, "Error: Invalid line range for file: a.txt (StartLine: 5, EndLine: 4, Total Lines: 10)",
			TenLines },
		{ "an empty file", "", &ReadRange<1, -1>, "Error: Invalid line range for file: a.txt (StartLine: 1, EndLine: 0, Total Lines: 0)",
			"" },
		{ "no file", nullptr, &ReadRange<1, -1>, "Error: File does not exist: {DIR}a.txt", "<none>" },
	};
	RunAll(Cases);
}

TEST(FileOperations, ReadingWhole)
{
	const FCase Cases[] = {
		{ "plain", "a\r\nb", [] { return FFileUtils::ReadFile(TEXT("a.txt")); }, "a\r\nb", "a\r\nb" },
		{ "UTF-8 with a mark", "\xEF\xBB\xBF\xC3\xA4", [] { return FFileUtils::ReadFile(TEXT("a.txt")); }, "\xC3\xA4",
			"\xEF\xBB\xBF\xC3\xA4" },
		{ "UTF-16", "\xFF\xFE\xE4", [] { return FFileUtils::ReadFile(TEXT("./x/../a.txt")); }, "", "\xFF\xFE\xE4" },
		{ "Latin-1", "\xE4", [] { return FFileUtils::ReadFile(TEXT("a.txt")); }, "\xC3\xA4", "\xE4" },
		{ "no file", nullptr, [] { return FFileUtils::ReadFile(TEXT("a.txt")); }, "Error: File does not exist: {DIR}a.txt", "<none>" },
		{ "a directory", nullptr, [] { return FFileUtils::ReadFile(TEXT("")); }, "Error: File does not exist: {DIR}", "<none>" },
	};
	RunAll(Cases);
}

TEST(FileOperations, CreatingReplacingDeleting)
{
	const FCase Cases[] = {
		{ "create", nullptr, [] { return FFileUtils::CreateNewFileWithContent(TEXT("a.txt"), TEXT("new")); },
			"File created successfully: a.txt", "new" },
		{ "create over", "old", [] { return FFileUtils::CreateNewFileWithContent(TEXT("a.txt"), TEXT("n\u00E4w")); },
			"File created successfully: a.txt", "n\xC3\xA4w" },
		{ "create below a file", "old", [] { return FFileUtils::CreateNewFileWithContent(TEXT("a.txt/b/c.txt"), TEXT("x")); },
			"Error: Failed to create directory: {DIR}a.txt/b", "old" },
		{ "create where a directory is", nullptr, [] { return FFileUtils::CreateNewFileWithContent(TEXT("."), TEXT("x")); },
			"Error: Failed to create file: .", "<none>" },
		{ "replace", "old", [] { return FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new")); }, "Successfully replaced file: a.txt",
			Bom + "new" },
		{ "replace nothing", nullptr, [] { return FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("new")); },
			"Error: File does not exist: {DIR}a.txt", "<none>" },
		{ "delete", "old", [] { return FFileUtils::DeleteFile(TEXT("a.txt")); }, "Successfully deleted file: a.txt", "<none>" },
		{ "delete nothing", nullptr, [] { return FFileUtils::DeleteFile(TEXT("a.txt")); }, "Error: File does not exist at path: a.txt",
			"<none>" },
	};
	RunAll(Cases);
}

template <int32 Line>
FString Insert()
{
	return FFileUtils::InsertIntoFile(TEXT("a.txt"), Line, TEXT("x\ny"));
}

TEST(FileOperations, Inserting)
{
	const FCase Cases[] = {
		{ "at the top", "1\r\n2", &Insert<-5>, "Successfully inserted text at line 0 in file: a.txt", "x\ny\n1\n2\n" },
		{ "between", "1\r\n2", &Insert<1>, "Successfully inserted text at line 1 in file: a.txt", "1\nx\ny\n2\n" },
		{ "at the end", "1\n2\n3\n", &Insert<1000>, "Successfully inserted text at line 3 in file: a.txt", "1\n2\n3\nx\ny\n" },
		{ "into an empty file", "", &Insert<7>, "Successfully inserted text at line 0 in file: a.txt", "x\ny\n" },
		{ "into nothing", nullptr, &Insert<0>, "Error: File does not exist: a.txt", "<none>" },
	};
	RunAll(Cases);
}

TEST(FileOperations, ReplacingALine)
{
	FTestProject Project;
	Project.Write("a.txt", "1\n2\n3");
	FFileUtils::ReplaceLineInFile(TEXT("a.txt"), 2, TEXT("two"));
	EXPECT_EQ(Project.Read("a.txt"), "1\ntwo\n3\n");
	for (const int32 Line : { 0, -1, 4 })
	{
		FFileUtils::ReplaceLineInFile(TEXT("a.txt"), Line, TEXT("no"));
	}
	FFileUtils::ReplaceLineInFile(TEXT("none.txt"), 1, TEXT("no"));
	EXPECT_EQ(Project.Read("a.txt"), "1\ntwo\n3\n");
	EXPECT_FALSE(Project.Has("none.txt"));
}

struct FUpdateCase
{
	const char* Name;
	const char* Before;
	const TCHAR* Old;
	const TCHAR* New;
	const char* Result;
	std::string After;
};

TEST(FileOperations, Updating)
{
	const char* const NotFound = "Error: String not found in file: a.txt";
	const char* const NoneMade = "Error: No replacements made in file: a.txt";
	const char* const Once = "Successfully updated file: a.txt with 1 replacements";
	const FUpdateCase Cases[] = {
		{ "every occurrence", "aXaXa", TEXT("a"), TEXT("bb"), "Successfully updated file: a.txt with 3 replacements", Bom + "bbXbbXbb" },
		{ "without overlap", "aaa", TEXT("aa"), TEXT("b"), Once, Bom + "ba" },
		{ "case counts", "A", TEXT("a"), TEXT("b"), NotFound, "A" },
		{ "not there", "x", TEXT("y"), TEXT("z"), NotFound, "x" },
		{ "an empty text", "x", TEXT(""), TEXT("z"), NoneMade, "x" },
		{ "line ends of the file", "a\r\nb\r\nc", TEXT("a\nb"), TEXT("1\n2"), Once, Bom + "1\n2\r\nc" },
		{ "line ends of the text", "a\nb", TEXT("a\r\nb"), TEXT("z"), Once, Bom + "z" },
		{ "tabs of the file", "\ta", TEXT("    a"), TEXT("z"), Once, Bom + "z" },
		{ "blanks of the file", "    a", TEXT("\ta"), TEXT("z"), Once, Bom + "z" },
		{ "line ends alone: the tabs are elsewhere", "    a\r\nb\t", TEXT("    a\nb"), TEXT("z"), Once, Bom + "z\t" },
		{ "indents alone", "\ta\r\nb", TEXT("    a\r\nb"), TEXT("z"), Once, Bom + "z" },
		{ "only alike when normalised", "\ta    b", TEXT("    a\tb"), TEXT("z"), NoneMade, "\ta    b" },
		{ "a mark is kept, not doubled", "\xEF\xBB\xBFx", TEXT("x"), TEXT("y"), Once, Bom + "y" },
	};
	for (const FUpdateCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FTestProject Project;
		Project.Write("a.txt", Case.Before);
		FString Old;
		FString New;
		EXPECT_EQ(ToUtf8(FFileUtils::UpdateFile(TEXT("a.txt"), Case.Old, Case.New, Old, New)), Case.Result);
		EXPECT_EQ(Project.Read("a.txt"), Case.After);
	}
}

TEST(FileOperations, UpdatingTellsBothTexts)
{
	FTestProject Project;
	Project.Write("a.txt", "old");
	FString Old;
	FString New;
	EXPECT_EQ(ToUtf8(FFileUtils::UpdateFile(TEXT("none.txt"), TEXT("o"), TEXT("x"), Old, New)), "Error: File does not exist: none.txt");
	EXPECT_TRUE(Old.IsEmpty());
	FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("nowhere"), TEXT("x"), Old, New);
	EXPECT_EQ(ToUtf8(Old), "old");
	EXPECT_TRUE(New.IsEmpty());
	FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("o"), TEXT("x"), Old, New);
	EXPECT_EQ(ToUtf8(New), "xld");
}

TEST(FileOperations, PathsMayLieAnywhere)
{
	FTestProject Project("Tr\xC3\xA4nen \xE2\x80\x94 und Blanks/" + std::string(200, 'x') + "/Build");
	EXPECT_EQ(ToUtf8(FFileUtils::CreateNewFileWithContent(TEXT("sub dir/\u00FC.txt"), TEXT("1"))),
		"File created successfully: sub dir/\xC3\xBC.txt");
	EXPECT_EQ(Project.Read("sub dir/\xC3\xBC.txt"), "1");
	const FString Absolute = Project.Dir() + TEXT("b.txt");
	FFileUtils::CreateNewFileWithContent(Absolute, TEXT("2"));
	EXPECT_EQ(Project.Read("b.txt"), "2");
	FFileUtils::CreateNewFileWithContent(TEXT("../c.txt"), TEXT("3"));
	EXPECT_EQ(Project.Read("../c.txt"), "3");
}

TEST(FileOperations, AReadOnlyFileIsNeitherChangedNorDeleted)
{
	FTestProject Project;
	Project.Write("a.txt", "old");
	chmod((Project.Folder() / "a.txt").c_str(), 0444);
	const std::string FullPath = ToUtf8(Project.Dir()) + "a.txt";
	FString Old;
	FString New;
	EXPECT_EQ(ToUtf8(FFileUtils::ReplaceFile(TEXT("a.txt"), TEXT("x"))), "Error: Failed to delete existing file: " + FullPath);
	EXPECT_EQ(
		ToUtf8(FFileUtils::UpdateFile(TEXT("a.txt"), TEXT("old"), TEXT("x"), Old, New)), "Error: Failed to delete existing file: a.txt");
	EXPECT_EQ(ToUtf8(FFileUtils::InsertIntoFile(TEXT("a.txt"), 0, TEXT("x"))), "Error: Failed to delete existing file: a.txt");
	EXPECT_EQ(ToUtf8(FFileUtils::DeleteFile(TEXT("a.txt"))), "Error: Failed to delete file: a.txt");
	EXPECT_EQ(Project.Read("a.txt"), "old");
	EXPECT_FALSE(Project.Has("Plugins/kestrin-unreal/Saved/Rewrites") &&
		!std::filesystem::is_empty(Project.Folder() / "Plugins/kestrin-unreal/Saved/Rewrites"));
}
}
