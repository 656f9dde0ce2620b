#include "Misc/FileHelper.h"

#include "CoreHost/FileFaults.h"
#include "TestSupport.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace
{
using EEncoding = FFileHelper::EEncodingOptions;
using namespace std::string_literals;

TEST(FileHelper, DecodesByMarkAndElseAsUtf8OrLatin1)
{
	const struct
	{
		std::string Bytes;
		FString Text;
	} Cases[] = {
		{ "", TEXT("") },
		{ "plain\r\n", TEXT("plain\r\n") },
		{ "gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80", TEXT("grüß 😀") },
		{ "\xEF\xBB\xBFmarked", TEXT("marked") },
		{ "\xEF\xBB\xBF", TEXT("") },
		{ "\xFF\xFEh\0\xFC\0"s, TEXT("hü") },
		{ "\xFE\xFF\0h\0\xFC"s, TEXT("hü") },
		{ "\xFF\xFEh\0\xFC"s, TEXT("h") },
		{ "latin \xFC", TEXT("latin ü") },
		{ "cut off \xC3", TEXT("cut off Ã") },
		{ "overlong \xC0\xAF", TEXT("overlong À¯") },
	};
	FTestDirectory Directory;
	for (const auto& Case : Cases)
	{
		Directory.Write("file", Case.Bytes);
		FString Text = TEXT("old");
		ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *(Directory / "file")));
		EXPECT_TRUE(Text.Equals(Case.Text)) << Case.Bytes;
	}
	Directory.Write("file", "a\0b"s);
	FString Text;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *(Directory / "file")));
	EXPECT_EQ(Text.Len(), 3);
}

TEST(FileHelper, WhatIsNoFileDoesNotLoad)
{
	FTestDirectory Directory;
	FString Text = TEXT("kept");
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *(Directory / "missing")));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *Directory.Path()));
	ASSERT_EQ(::mkfifo(Directory.Native("pipe").c_str(), 0600), 0);
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *(Directory / "pipe")));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, TEXT("")));
	EXPECT_EQ(Text, FString(TEXT("kept")));
}

TEST(FileHelper, Encodes)
{
	const struct
	{
		EEncoding Encoding;
		FString Text;
		std::string Bytes;
	} Cases[] = {
		{ EEncoding::AutoDetect, TEXT("plain\n"), "plain\n" },
		{ EEncoding::AutoDetect, TEXT("ü"), "\xC3\xBC" },
		{ EEncoding::ForceAnsi, TEXT("ü€"), "\xFC?" },
		{ EEncoding::ForceUnicode, TEXT("aü"),
			"\xFF\xFE"
			"a\0\xFC\0"s },
		{ EEncoding::ForceUTF8, TEXT("a"),
			"\xEF\xBB\xBF"
			"a" },
		{ EEncoding::ForceUTF8WithoutBOM, TEXT("ü"), "\xC3\xBC" },
		{ EEncoding::ForceUTF8, TEXT(""), "" },
		{ EEncoding::ForceUnicode, TEXT(""), "" },
	};
	FTestDirectory Directory;
	for (const auto& Case : Cases)
	{
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Case.Text, *(Directory / "new/folder/file"), Case.Encoding));
		EXPECT_EQ(Directory.Read("new/folder/file"), Case.Bytes);
	}
}

TEST(FileHelper, AppendingMarksAnEmptyFileOnly)
{
	FTestDirectory Directory;
	const FString Path = Directory / "log";
	const auto Append = [&Path](const TCHAR* Text)
	{ return FFileHelper::SaveStringToFile(Text, *Path, EEncoding::ForceUTF8, &IFileManager::Get(), FILEWRITE_Append); };
	ASSERT_TRUE(Append(TEXT("one ")));
	ASSERT_TRUE(Append(TEXT("zwölf")));
	EXPECT_EQ(Directory.Read("log"), "\xEF\xBB\xBFone zw\xC3\xB6lf");
}

TEST(FileHelper, Lines)
{
	const struct
	{
		std::string Bytes;
		TArray<FString> Lines;
	} Cases[] = {
		{ "", {} },
		{ "\n", { TEXT("") } },
		{ "a", { TEXT("a") } },
		{ "a\nb\n", { TEXT("a"), TEXT("b") } },
		{ "a\r\n\r\nb\rc", { TEXT("a"), TEXT(""), TEXT("b"), TEXT("c") } },
		{ "a\n\n", { TEXT("a"), TEXT("") } },
	};
	FTestDirectory Directory;
	for (const auto& Case : Cases)
	{
		Directory.Write("file", Case.Bytes);
		TArray<FString> Lines = { TEXT("old") };
		ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *(Directory / "file")));
		EXPECT_EQ(Lines, Case.Lines) << Case.Bytes;
	}
	ASSERT_TRUE(FFileHelper::SaveStringArrayToFile({ TEXT("a\r\nb"), TEXT(""), TEXT("c") }, *(Directory / "file")));
	EXPECT_EQ(Directory.Read("file"), "a\r\nb\n\nc\n");
}

TEST(FileHelper, ReadOnlyFilesAreKeptForEveryUser)
{
	FTestDirectory Directory;
	Directory.Write("file", "old");
	std::filesystem::permissions(Directory.Native("file"), std::filesystem::perms(0444));
	const FString Path = Directory / "file";
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("new"), *Path));
	EXPECT_EQ(Directory.Read("file"), "old");
	EXPECT_TRUE(FFileHelper::SaveStringToFile(TEXT("new"), *Path, EEncoding::AutoDetect, &IFileManager::Get(), FILEWRITE_EvenIfReadOnly));
	EXPECT_EQ(Directory.Read("file"), "new");
}

TEST(FileHelper, WhatCannotBeWrittenIsToldSo)
{
	FTestDirectory Directory;
	Directory.Write("file", "x");
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *(Directory / "file/below")));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *Directory.Path()));
}

/** A limit of the process on the size of files: the write after it fails as on a full disk. */
class FFileSizeLimit
{
public:
	explicit FFileSizeLimit(rlim_t Bytes)
	{
		OldHandler = std::signal(SIGXFSZ, SIG_IGN);
		::getrlimit(RLIMIT_FSIZE, &Old);
		const rlimit Limited = { Bytes, Old.rlim_max };
		::setrlimit(RLIMIT_FSIZE, &Limited);
	}
	~FFileSizeLimit()
	{
		::setrlimit(RLIMIT_FSIZE, &Old);
		std::signal(SIGXFSZ, OldHandler);
	}

private:
	rlimit Old = {};
	void (*OldHandler)(int);
};

TEST(FileHelper, APartialWriteIsAFailure)
{
	FTestDirectory Directory;
	const FString Text(std::u16string(100'000, u'x'));
	bool bSaved;
	{
		const FFileSizeLimit Limit(65'536);
		bSaved = FFileHelper::SaveStringToFile(Text, *(Directory / "file"));
	}
	EXPECT_FALSE(bSaved);
	EXPECT_EQ(std::filesystem::file_size(Directory.Native("file")), 65'536u);
}

TEST(FileHelper, FaultsAreSeenInOrderAndFailTheirOperation)
{
	FTestDirectory Directory;
	std::vector<EFileOperation> Seen;
	FFileFaults::SetHook(
		[&Seen](EFileOperation Operation, const FString&)
		{
		Seen.push_back(Operation);
		return Operation != EFileOperation::Write;
	});
	const bool bSaved = FFileHelper::SaveStringToFile(TEXT("12345678"), *(Directory / "new/file"));
	FFileFaults::SetHook(nullptr);
	EXPECT_FALSE(bSaved);
	EXPECT_EQ(Seen, (std::vector{ EFileOperation::CreateDirectory, EFileOperation::OpenWrite, EFileOperation::Write }));
	EXPECT_EQ(Directory.Read("new/file"), "1234");
}
}
