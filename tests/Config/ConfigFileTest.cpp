#include "CoreHost/FileFaults.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/ConfigCacheIni.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace std::string_literals;

namespace
{
// A key's values, joined by "|"; "(none)" for a key that is not named.
FString GetValues(const FConfigFile& File, const TCHAR* Section, const TCHAR* Key)
{
	const TArray<FString>* const Values = File.FindValues(Section, Key);
	return Values ? FString::Join(*Values, TEXT("|")) : FString(TEXT("(none)"));
}

FString ReadValues(const TCHAR* Text)
{
	FConfigFile File;
	File.CombineFromBuffer(Text, TEXT("Test.ini"));
	return GetValues(File, TEXT("S"), TEXT("K"));
}
}

TEST(ConfigFile, AppliesEachKindOfLine)
{
	struct
	{
		const TCHAR* Text;
		const TCHAR* Values;
	} const Cases[] = {
		{ TEXT("[S]\nK=1"), TEXT("1") },
		{ TEXT("[s]\r\nk = a b \r\n"), TEXT("a b") },
		{ TEXT("\t[S]\rK=1\rK=2\r"), TEXT("2") },
		{ TEXT("[S]\nK=\n"), TEXT("") },
		{ TEXT("[S]\nK=a=b;c"), TEXT("a=b;c") },
		{ TEXT("[S]\n;K=1\n ; K=2"), TEXT("(none)") },
		{ TEXT("[S]\n[T]\nK=1\n[S]\n"), TEXT("(none)") },
		{ TEXT("[S]\nK=1\n[T]\nK=2\n[S]\n+K=3"), TEXT("1|3") },
		{ TEXT("[S]\n+K=1\n+K=2\n+K=1\n.K=1"), TEXT("1|2|1") },
		{ TEXT("[S]\n+K=a\n+K=A\n"), TEXT("a|A") },
		{ TEXT("[S]\n+K=1\n.K=1\n+K=2\n-K=1\n-K=3"), TEXT("2") },
		{ TEXT("[S]\n+K=1\n!K=ClearArray\n+K=2"), TEXT("2") },
		{ TEXT("[S]\n+K=1\n!K=ClearArray"), TEXT("") },
		{ TEXT("[S]\nK=\" a \\\"b\\\"\\n\""), TEXT(" a \"b\"\n") },
		{ TEXT("[S]\nK=\"a\" \"b\""), TEXT("\"a\" \"b\"") },
		{ TEXT("[S]\nK=\"C:\\Game\""), TEXT("C:\\Game") },
		{ TEXT("[S]\nK=(A=\"x\",B=2)"), TEXT("(A=\"x\",B=2)") },
		{ TEXT("[S]\nK=//x"), TEXT("//x") },
		{ TEXT("[/Script/Game.Thing]\n[S]\n+ K = 1"), TEXT("1") },
	};
	for (const auto& Each : Cases)
	{
		EXPECT_EQ(ReadValues(Each.Text), Each.Values) << TCHAR_TO_UTF8(Each.Text);
	}
}

TEST(ConfigFile, PassesOverBadLinesAndNamesThem)
{
	const FTestDirectory Directory;
	Directory.Write("Bad.ini", "K=0\n[S]\nno key\n[open\nK=1\n=5\n+=6\n]\n\0\x01\xFF\nK=2"s);
	const FLogLines Log;
	FConfigFile File;
	File.Read(Directory / "Bad.ini");
	EXPECT_EQ(GetValues(File, TEXT("S"), TEXT("K")), TEXT("2"));
	const FString Path = Directory / "Bad.ini";
	TArray<FString> Expected{ TEXT("LogConfig|Warning|") + Path + TEXT("(1): the line is in no section and is passed over") };
	for (const int32 Line : { 3, 4, 6, 7, 8, 9 })
	{
		Expected.Add(
			FString::Printf(TEXT("LogConfig|Warning|%s(%d): the line is no section, key or comment and is passed over"), *Path, Line));
	}
	EXPECT_EQ(FString::Join(Log.Lines, TEXT("\n")), FString::Join(Expected, TEXT("\n")));
}

TEST(ConfigFile, LeavesTheTextOfAMissingKeyAlone)
{
	FConfigFile File;
	File.CombineFromBuffer(TEXT("[S]\n!Cleared=\nEmpty=\n+Many=1\n+Many=2"), TEXT("Test.ini"));
	FString Text = TEXT("kept");
	EXPECT_FALSE(File.GetString(TEXT("S"), TEXT("Missing"), Text));
	EXPECT_FALSE(File.GetString(TEXT("T"), TEXT("Many"), Text));
	EXPECT_FALSE(File.GetString(TEXT("S"), TEXT("Cleared"), Text));
	EXPECT_EQ(Text, TEXT("kept"));
	EXPECT_TRUE(File.GetString(TEXT("S"), TEXT("Many"), Text));
	EXPECT_EQ(Text, TEXT("2"));
	EXPECT_TRUE(File.GetString(TEXT("S"), TEXT("Empty"), Text));
	EXPECT_EQ(Text, TEXT(""));
	TArray<FString> Values{ TEXT("old") };
	EXPECT_EQ(File.GetArray(TEXT("S"), TEXT("Missing"), Values), 0);
	EXPECT_TRUE(Values.IsEmpty());
	File.Read(TEXT("/no/such/file.ini"));
	EXPECT_FALSE(File.GetString(TEXT("S"), TEXT("Many"), Text)) << "a new read replaces all";
}

TEST(ConfigFile, WritesItsKeysAndKeepsAllOtherBytes)
{
	struct
	{
		const char* Before;
		const char* After;
	} const Cases[] = {
		{ "", "[S]\nK=v\n!L=ClearArray\n+L=a\n.L=a\n" },
		{ "[S]\nK=v\n", "[S]\nK=v\n!L=ClearArray\n+L=a\n.L=a\n" },
		{ "; top\n[S] \n; mine\n k =old ; no comment\nOther = 1\n\n[T]\nK=old\n",
			"; top\n[S] \n; mine\nk=v\nOther = 1\n!L=ClearArray\n+L=a\n.L=a\n\n[T]\nK=old\n" },
		{ "[T]\r\nK=1", "[T]\r\nK=1\r\n\r\n[S]\r\nK=v\r\n!L=ClearArray\r\n+L=a\r\n.L=a\r\n" },
		{ "[S]\n!L=x\n+L=b\n-L=c\nbad line\n+L=d\n", "[S]\n!L=ClearArray\n+L=a\n.L=a\nbad line\nK=v\n" },
		{ "[S]\nK=1\n[T]\n[s]\nK=2\n+L=3", "[S]\nK=v\n[T]\n[s]\n!L=ClearArray\n+L=a\n.L=a\n" },
		{ "\xEF\xBB\xBF[S]\n\xC3\xBC=\xC3\xA4\n", "\xEF\xBB\xBF[S]\n\xC3\xBC=\xC3\xA4\nK=v\n!L=ClearArray\n+L=a\n.L=a\n" },
		{ "[S]\n;\xFC is Latin-1\n", "[S]\n;\xFC is Latin-1\nK=v\n!L=ClearArray\n+L=a\n.L=a\n" },
		{ "[S]\r;old\rK=1\r", "[S]\r;old\rK=v\r!L=ClearArray\r+L=a\r.L=a\r" },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(Each.Before);
		const FTestDirectory Directory;
		Directory.Write("A.ini", Each.Before);
		FConfigFile File;
		File.Read(Directory / "A.ini");
		File.SetString(TEXT("S"), TEXT("K"), TEXT("v"));
		File.SetArray(TEXT("S"), TEXT("L"), { TEXT("a"), TEXT("a") });
		EXPECT_TRUE(File.Write(Directory / "A.ini"));
		EXPECT_EQ(Directory.Read("A.ini"), Each.After);
		EXPECT_TRUE(File.Write(Directory / "A.ini"));
		EXPECT_EQ(Directory.Read("A.ini"), Each.After) << "a second time";
	}
}

TEST(ConfigFile, KeepsTheEncodingOfTheFile)
{
	const auto Encode = [](std::u16string_view Text, bool bBig)
	{
		std::string Bytes;
		for (const char16_t Unit : Text)
		{
			Bytes += static_cast<char>(bBig ? Unit >> 8 : Unit);
			Bytes += static_cast<char>(bBig ? Unit : Unit >> 8);
		}
		return Bytes;
	};
	for (const bool bBig : { false, true })
	{
		const FTestDirectory Directory;
		Directory.Write("A.ini", Encode(u"\xFEFF;\xD800 \x20AC\r\n[S]\r\nK=1\r\n", bBig));
		FConfigFile File;
		File.Read(Directory / "A.ini");
		File.SetString(TEXT("S"), TEXT("K"), TEXT("\u20AC"));
		EXPECT_TRUE(File.Write(Directory / "A.ini"));
		EXPECT_EQ(Directory.Read("A.ini"), Encode(u"\xFEFF;\xD800 \x20AC\r\n[S]\r\nK=\x20AC\r\n", bBig));
	}
	// A Latin-1 file can't hold every character: the whole of it becomes UTF-8.
	const FTestDirectory Directory;
	Directory.Write("A.ini", "[S]\nA=\xFC\nK=1\n");
	FConfigFile File;
	File.Read(Directory / "A.ini");
	File.SetString(TEXT("S"), TEXT("K"), TEXT("\u20AC"));
	EXPECT_TRUE(File.Write(Directory / "A.ini"));
	EXPECT_EQ(Directory.Read("A.ini"), "[S]\nA=\xC3\xBC\nK=\xE2\x82\xAC\n");
}

TEST(ConfigFile, BringsEveryValueBack)
{
	const FTestDirectory Directory;
	const TArray<FString> Values{ TEXT(""), TEXT(" "), TEXT(" a"), TEXT("a\t"), TEXT("\"a\""), TEXT("\""), TEXT("a\nb"), TEXT("\r"),
		TEXT(";a"), TEXT("[a]"), TEXT("+a"), TEXT("a\\"), TEXT("\\n"), TEXT("a"), TEXT("A"), TEXT("a"), TEXT("\u00FC\U0001F600"),
		TEXT("\u00A0") };
	FConfigFile File;
	File.SetArray(TEXT("S"), TEXT("L"), Values);
	File.SetArray(TEXT("S"), TEXT("Empty"), {});
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		File.SetString(TEXT("S"), *FString::FromInt(Index), *Values[Index]);
	}
	ASSERT_TRUE(File.Write(Directory / "Sub/A.ini"));

	FConfigFile Again;
	Again.Read(Directory / "Sub/A.ini");
	const TArray<FString>* const Read = Again.FindValues(TEXT("S"), TEXT("L"));
	ASSERT_NE(Read, nullptr);
	ASSERT_EQ(Read->Num(), Values.Num());
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		EXPECT_TRUE((*Read)[Index].Equals(Values[Index])) << Index;
		FString Single = TEXT("(none)");
		EXPECT_TRUE(Again.GetString(TEXT("S"), *FString::FromInt(Index), Single));
		EXPECT_TRUE(Single.Equals(Values[Index])) << Index;
	}
	EXPECT_EQ(GetValues(Again, TEXT("S"), TEXT("Empty")), TEXT(""));
}

TEST(ConfigFile, LosesNothingWhenTheWriteFails)
{
	const std::string Before = "[S]\nK=1\n";
	for (const EFileOperation Operation :
		{ EFileOperation::CopyFile, EFileOperation::OpenWrite, EFileOperation::Write, EFileOperation::MoveFile })
	{
		SCOPED_TRACE(static_cast<int>(Operation));
		const FTestDirectory Directory;
		Directory.Write("A.ini", Before);
		FConfigFile File;
		File.Read(Directory / "A.ini");
		File.SetString(TEXT("S"), TEXT("K"), TEXT("2"));
		const FLogLines Log;
		FFileFaults::SetHook([Operation](EFileOperation Each, const FString&) { return Each != Operation; });
		EXPECT_FALSE(File.Write(Directory / "A.ini"));
		FFileFaults::SetHook({});
		EXPECT_TRUE(Log.HasLineWith(*(TEXT("LogConfig|Warning|") + Directory / "A.ini")));
		EXPECT_EQ(Directory.Read("A.ini"), Before);
		EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Directory.Native("")), {}), 1) << "nothing is left beside it";
		EXPECT_TRUE(File.Write(Directory / "A.ini")) << "what was set is not forgotten";
		EXPECT_EQ(Directory.Read("A.ini"), "[S]\nK=2\n");
	}
}

TEST(ConfigFile, HeedsPermissions)
{
	const FTestDirectory Directory;
	Directory.Write("A.ini", "[S]\nK=1\n");
	::chmod(Directory.Native("A.ini").c_str(), 0600);
	FConfigFile File;
	File.SetString(TEXT("S"), TEXT("K"), TEXT("2"));
	ASSERT_TRUE(File.Write(Directory / "A.ini"));
	struct stat Status
	{
	};
	::stat(Directory.Native("A.ini").c_str(), &Status);
	EXPECT_EQ(Status.st_mode & 0777u, 0600u) << "a file may hold a key";

	FPlatformFileManager::Get().GetPlatformFile().SetReadOnly(*(Directory / "A.ini"), true);
	File.SetString(TEXT("S"), TEXT("K"), TEXT("3"));
	EXPECT_FALSE(File.Write(Directory / "A.ini"));
	EXPECT_EQ(Directory.Read("A.ini"), "[S]\nK=2\n");
}
