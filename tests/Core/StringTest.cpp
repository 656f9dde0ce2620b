#include "Containers/StringView.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
/** The parts in their order, joined so that empty ones show. */
std::u16string Joined(const TArray<FString>& Parts)
{
	std::u16string Result;
	for (const FString& Part : Parts)
	{
		Result += u"<" + Part.Native() + u">";
	}
	return Result;
}

const FString Sample = TEXT("one Two ONE two");

TEST(String, OperatorsIgnoreCaseAndEqualsHeedsIt)
{
	EXPECT_TRUE(FString(TEXT("Größe")) == TEXT("GRÖßE"));
	EXPECT_FALSE(FString(TEXT("abc")) == TEXT("abcd"));
	EXPECT_TRUE(FString(TEXT("a")) < FString(TEXT("B")));
	EXPECT_TRUE(FString(TEXT("B")) < FString(TEXT("c")));
	EXPECT_TRUE(FString(TEXT("ab")) < FString(TEXT("ABC")));
	EXPECT_FALSE(FString(TEXT("abc")).Equals(TEXT("ABC")));
	EXPECT_TRUE(FString(TEXT("abc")).Equals(TEXT("ABC"), ESearchCase::IgnoreCase));
	EXPECT_GT(FString(TEXT("a")).Compare(TEXT("B")), 0);
	EXPECT_LT(FString(TEXT("a")).Compare(TEXT("B"), ESearchCase::IgnoreCase), 0);
}

TEST(String, OrderAndEqualityAgreeBehindAZero)
{
	const FString A(std::u16string_view(u"x\0a", 3));
	const FString B(std::u16string_view(u"x\0b", 3));
	EXPECT_NE(A, B);
	EXPECT_TRUE(A < B);
	EXPECT_FALSE(B < A);
	EXPECT_TRUE(FString(TEXT("x")) < A);
}

TEST(String, EqualTextsHashAlikeWhateverTheirCase)
{
	EXPECT_EQ(GetTypeHash(FString(TEXT("Straße/ÄÖ_1"))), GetTypeHash(FString(TEXT("STRAßE/äö_1"))));
	EXPECT_NE(GetTypeHash(FString(TEXT("ab"))), GetTypeHash(FString(TEXT("ba"))));
}

TEST(String, Find)
{
	const struct
	{
		const TCHAR* Needle;
		ESearchCase::Type Case;
		ESearchDir::Type Direction;
		int32 Start;
		int32 Wanted;
	} Cases[] = {
		{ u"TWO", ESearchCase::IgnoreCase, ESearchDir::FromStart, INDEX_NONE, 4 },
		{ u"TWO", ESearchCase::CaseSensitive, ESearchDir::FromStart, INDEX_NONE, INDEX_NONE },
		{ u"two", ESearchCase::IgnoreCase, ESearchDir::FromStart, 4, 4 },
		{ u"two", ESearchCase::IgnoreCase, ESearchDir::FromStart, 5, 12 },
		{ u"two", ESearchCase::IgnoreCase, ESearchDir::FromStart, 13, INDEX_NONE },
		{ u"two", ESearchCase::IgnoreCase, ESearchDir::FromStart, 1000, INDEX_NONE },
		{ u"one", ESearchCase::IgnoreCase, ESearchDir::FromEnd, INDEX_NONE, 8 },
		{ u"one", ESearchCase::CaseSensitive, ESearchDir::FromEnd, INDEX_NONE, 0 },
		// Backwards, the place found ends at the start position or before it.
		{ u"one", ESearchCase::IgnoreCase, ESearchDir::FromEnd, 11, 8 },
		{ u"one", ESearchCase::IgnoreCase, ESearchDir::FromEnd, 10, 0 },
		{ u"one", ESearchCase::IgnoreCase, ESearchDir::FromEnd, 2, INDEX_NONE },
		{ u"one Two ONE two ", ESearchCase::IgnoreCase, ESearchDir::FromStart, INDEX_NONE, INDEX_NONE },
		{ u"one Two ONE two ", ESearchCase::IgnoreCase, ESearchDir::FromEnd, INDEX_NONE, INDEX_NONE },
		{ u"", ESearchCase::IgnoreCase, ESearchDir::FromStart, INDEX_NONE, 0 },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Sample.Find(Case.Needle, Case.Case, Case.Direction, Case.Start), Case.Wanted)
			<< TCHAR_TO_UTF8(Case.Needle) << " from " << Case.Start;
	}
	EXPECT_EQ(FString(TEXT("ÄÖÜ")).Find(TEXT("öü")), 1);
	EXPECT_EQ(FString(TEXT("aaab")).Find(TEXT("AAB")), 1);
	EXPECT_TRUE(FString().Contains(TEXT("")));
	EXPECT_FALSE(FString().Contains(TEXT("a")));

	int32 Index = 7;
	EXPECT_TRUE(Sample.FindChar('T', Index));
	EXPECT_EQ(Index, 4);
	EXPECT_TRUE(Sample.FindLastChar('o', Index));
	EXPECT_EQ(Index, 14);
	EXPECT_FALSE(Sample.FindChar('x', Index));
	EXPECT_EQ(Index, INDEX_NONE);
}

TEST(String, StartsAndEnds)
{
	EXPECT_TRUE(Sample.StartsWith(TEXT("ONE")));
	EXPECT_FALSE(Sample.StartsWith(TEXT("ONE"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Sample.EndsWith(TEXT("TWO")));
	EXPECT_FALSE(Sample.EndsWith(TEXT("TWO"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Sample.StartsWith(TEXT("")));
	EXPECT_FALSE(Sample.EndsWith(TEXT("")));
	EXPECT_FALSE(FString(TEXT("a")).StartsWith(TEXT("ab")));
	EXPECT_FALSE(FString(TEXT("a")).EndsWith(TEXT("ba")));

	FString Path = TEXT("Source/Game/Source");
	EXPECT_FALSE(Path.RemoveFromStart(TEXT("Game/")));
	EXPECT_TRUE(Path.RemoveFromStart(TEXT("source/")));
	EXPECT_FALSE(Path.RemoveFromEnd(TEXT("SOURCE"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Path.RemoveFromEnd(TEXT("SOURCE")));
	EXPECT_EQ(Path.Native(), u"Game/");
}

TEST(String, PartsAreCutOffAtTheEnds)
{
	const FString Text = TEXT("abcdef");
	const struct
	{
		FString Part;
		const TCHAR* Wanted;
	} Cases[] = {
		{ Text.Left(2), u"ab" },
		{ Text.Left(99), u"abcdef" },
		{ Text.Left(-1), u"" },
		{ Text.LeftChop(2), u"abcd" },
		{ Text.LeftChop(99), u"" },
		{ Text.LeftChop(-1), u"abcdef" },
		{ Text.Right(2), u"ef" },
		{ Text.Right(99), u"abcdef" },
		{ Text.Right(-1), u"" },
		{ Text.RightChop(2), u"cdef" },
		{ Text.RightChop(99), u"" },
		{ Text.RightChop(-1), u"abcdef" },
		{ Text.Mid(2), u"cdef" },
		{ Text.Mid(2, 3), u"cde" },
		{ Text.Mid(4, 99), u"ef" },
		{ Text.Mid(6, 1), u"" },
		{ Text.Mid(99, 1), u"" },
		{ Text.Mid(-2, 3), u"a" },
		{ Text.Mid(1, -1), u"" },
		{ Text.Mid(0x7fffffff, 0x7fffffff), u"" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Case.Part.Native(), Case.Wanted);
	}
}

TEST(String, Replace)
{
	const struct
	{
		const TCHAR *Text, *From, *To;
		ESearchCase::Type Case;
		const TCHAR* Wanted;
		int32 Count;
	} Cases[] = {
		{ u"aXbxc", u"x", u"--", ESearchCase::IgnoreCase, u"a--b--c", 2 },
		{ u"aXbxc", u"x", u"--", ESearchCase::CaseSensitive, u"aXb--c", 1 },
		{ u"aaaa", u"aa", u"b", ESearchCase::IgnoreCase, u"bb", 2 },
		{ u"aaa", u"aa", u"b", ESearchCase::IgnoreCase, u"ba", 1 },
		// What a replacement brings is not searched again.
		{ u"aa", u"a", u"aa", ESearchCase::IgnoreCase, u"aaaa", 2 },
		{ u"abab", u"ab", u"", ESearchCase::IgnoreCase, u"", 2 },
		{ u"abc", u"", u"x", ESearchCase::IgnoreCase, u"abc", 0 },
		{ u"abc", u"d", u"x", ESearchCase::IgnoreCase, u"abc", 0 },
		{ u"", u"a", u"x", ESearchCase::IgnoreCase, u"", 0 },
	};
	for (const auto& Case : Cases)
	{
		FString Text = Case.Text;
		EXPECT_EQ(Text.Replace(Case.From, Case.To, Case.Case).Native(), Case.Wanted);
		EXPECT_EQ(Text.ReplaceInline(Case.From, Case.To, Case.Case), Case.Count);
		EXPECT_EQ(Text.Native(), Case.Wanted);
	}
	FString Self = TEXT("ab");
	Self.ReplaceInline(*Self, *Self);
	EXPECT_EQ(Self.Native(), u"ab");
	Self.ReplaceCharInline('a', 'c');
	EXPECT_EQ(Self.Native(), u"cb");
}

TEST(String, Trim)
{
	const FString Text = TEXT("\r\n\t \u00A0a b\u3000\v \n");
	EXPECT_EQ(Text.TrimStart().Native(), u"a b\u3000\v \n");
	EXPECT_EQ(Text.TrimEnd().Native(), u"\r\n\t \u00A0a b");
	EXPECT_EQ(Text.TrimStartAndEnd().Native(), u"a b");
	EXPECT_EQ(FString(TEXT(" \t\n")).TrimStartAndEnd().Native(), u"");
	EXPECT_EQ(FStringView(Text).TrimStartAndEnd().Len(), 3);
	EXPECT_TRUE(FStringView(TEXT(" \t\n")).TrimStartAndEnd().IsEmpty());
}

TEST(String, ParseIntoArray)
{
	const struct
	{
		const TCHAR *Text, *Delimiter, *Culled, *Whole;
	} Cases[] = {
		{ u"a,b", u",", u"<a><b>", u"<a><b>" },
		{ u",a,,b,", u",", u"<a><b>", u"<><a><><b><>" },
		{ u"a, b", u", ", u"<a><b>", u"<a><b>" },
		{ u"aXxb", u"x", u"<aX><b>", u"<aX><b>" },
		{ u",", u",", u"", u"<><>" },
		{ u"abc", u",", u"<abc>", u"<abc>" },
		{ u"", u",", u"", u"" },
		{ u"a---b", u"--", u"<a><-b>", u"<a><-b>" },
	};
	for (const auto& Case : Cases)
	{
		TArray<FString> Parts = { TEXT("old") };
		int32 Count = FString(Case.Text).ParseIntoArray(Parts, Case.Delimiter);
		EXPECT_EQ(Count, Parts.Num());
		EXPECT_EQ(Joined(Parts), Case.Culled) << TCHAR_TO_UTF8(Case.Text);
		Count = FString(Case.Text).ParseIntoArray(Parts, Case.Delimiter, false);
		EXPECT_EQ(Count, Parts.Num());
		EXPECT_EQ(Joined(Parts), Case.Whole) << TCHAR_TO_UTF8(Case.Text);
	}
}

TEST(String, ParseIntoArrayLines)
{
	const struct
	{
		const TCHAR *Text, *Culled, *Whole;
	} Cases[] = {
		{ u"a\nb\r\nc\rd", u"<a><b><c><d>", u"<a><b><c><d>" },
		{ u"a\n\nb\r\r\nc", u"<a><b><c>", u"<a><><b><><c>" },
		{ u"a\n", u"<a>", u"<a>" },
		{ u"\r\n\r\n", u"", u"<><>" },
		{ u"\n\r", u"", u"<><>" },
		{ u"", u"", u"" },
	};
	for (const auto& Case : Cases)
	{
		TArray<FString> Lines;
		int32 Count = FString(Case.Text).ParseIntoArrayLines(Lines);
		EXPECT_EQ(Count, Lines.Num());
		EXPECT_EQ(Joined(Lines), Case.Culled) << TCHAR_TO_UTF8(Case.Text);
		Count = FString(Case.Text).ParseIntoArrayLines(Lines, false);
		EXPECT_EQ(Count, Lines.Num());
		EXPECT_EQ(Joined(Lines), Case.Whole) << TCHAR_TO_UTF8(Case.Text);
	}
}

TEST(String, SplitsAtTheFirstOrTheLastSeparator)
{
	FString Left, Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ(Left.Native() + u"|" + Right.Native(), u"a|b=c");
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ(Left.Native() + u"|" + Right.Native(), u"a=b|c");
	EXPECT_TRUE(FString(TEXT("key=")).Split(TEXT("="), nullptr, &Right));
	EXPECT_TRUE(Right.IsEmpty());
	EXPECT_FALSE(FString(TEXT("abc")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ(Left.Native(), u"a=b");

	FString Rest = TEXT("a/b/c");
	EXPECT_TRUE(Rest.Split(TEXT("/"), &Left, &Rest));
	EXPECT_EQ(Left.Native() + u"|" + Rest.Native(), u"a|b/c");
	FString Separator = TEXT("--");
	EXPECT_TRUE(FString(TEXT("long--x")).Split(Separator, &Separator, &Right));
	EXPECT_EQ(Separator.Native() + u"|" + Right.Native(), u"long|x");
}

TEST(String, JoinsPartsAndPaths)
{
	EXPECT_EQ(FString::Join(TArray<FString>{ TEXT("a"), TEXT(""), TEXT("b") }, TEXT(", ")).Native(), u"a, , b");
	EXPECT_EQ(FString::Join(TArray<FString>(), TEXT(",")).Native(), u"");
	const struct
	{
		const TCHAR *A, *B, *Wanted;
	} Cases[] = { { u"a", u"b", u"a/b" }, { u"a/", u"b", u"a/b" }, { u"a", u"/b", u"a/b" }, { u"a/", u"/b", u"a/b" }, { u"", u"b", u"b" },
		{ u"a", u"", u"a/" }, { u"a/", u"", u"a/" }, { u"", u"", u"" } };
	for (const auto& Case : Cases)
	{
		EXPECT_EQ((FString(Case.A) / Case.B).Native(), Case.Wanted);
	}
}

TEST(String, MatchesWildcards)
{
	const struct
	{
		const TCHAR *Text, *Pattern;
		bool bMatches;
	} Cases[] = {
		{ u"Actor.h", u"*.H", true },
		{ u"Actor.h", u"*", true },
		{ u"", u"*", true },
		{ u"", u"?", false },
		{ u"abc", u"a?c", true },
		{ u"abc", u"a?", false },
		{ u"a.b.c", u"*.?", true },
		{ u"aXbXc", u"a*b*d", false },
		{ u"aaab", u"*ab", true },
		{ u"abc", u"abc**", true },
		{ u"abc", u"", false },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FString(Case.Text).MatchesWildcard(Case.Pattern), Case.bMatches)
			<< TCHAR_TO_UTF8(Case.Text) << " " << TCHAR_TO_UTF8(Case.Pattern);
	}
	EXPECT_FALSE(FString(TEXT("Actor.h")).MatchesWildcard(TEXT("*.H"), ESearchCase::CaseSensitive));
	// A pattern of many stars stays quick.
	EXPECT_FALSE(FString::ChrN(10000, 'a').MatchesWildcard(TEXT("*a*a*a*a*a*a*a*a*b")));
}

TEST(String, EditsInPlace)
{
	FString Text = TEXT("bd");
	Text.InsertAt(1, TEXT("c"));
	Text.InsertAt(0, TEXT("a"));
	Text.InsertAt(4, TEXT("e"));
	EXPECT_EQ(Text.Native(), u"abcde");
	Text.RemoveAt(1, 2);
	EXPECT_EQ(Text.Native(), u"ade");
	Text += Text;
	Text += *Text;
	EXPECT_EQ(Text.Native(), u"adeadeadeade");
	Text.MidInline(1, 3);
	Text.AppendInt(-2147483647 - 1);
	EXPECT_EQ(Text.Native(), u"dea-2147483648");
	EXPECT_EQ(FString(TEXT("Ärger ß ŁÓDŹ")).ToLower().Native(), u"ärger ß łódź");
	EXPECT_EQ(FString(TEXT("ärger łódź ß")).ToUpper().Native(), u"ÄRGER ŁÓDŹ ß");
	EXPECT_TRUE(FString(static_cast<const TCHAR*>(nullptr)).IsEmpty());
	EXPECT_TRUE(FString(static_cast<const ANSICHAR*>(nullptr)).IsEmpty());
}

TEST(String, NumbersAndBooleansInText)
{
	const struct
	{
		const TCHAR* Text;
		bool bNumeric, bTrue;
		int32 Integer;
		double Number;
	} Cases[] = {
		{ u"42", true, true, 42, 42 }, { u"-1.5", true, true, -1, -1.5 }, { u"+3", true, true, 3, 3 }, { u".5", true, false, 0, 0.5 },
		{ u"5.", true, true, 5, 5 }, { u"0", true, false, 0, 0 }, { u" \t7x", false, true, 7, 7 }, { u"1.2.3", false, true, 1, 1.2 },
		{ u"1e3", false, true, 1, 1000 }, { u"-", false, false, 0, 0 }, { u".", false, false, 0, 0 }, { u"", false, false, 0, 0 },
		{ u"TRUE", false, true, 0, 0 }, { u"yes", false, true, 0, 0 }, { u"On", false, true, 0, 0 }, { u"off", false, false, 0, 0 },
		{ u"truely", false, false, 0, 0 }, { u"99999999999", true, true, 2147483647, 99999999999.0 },
		{ u"-99999999999", true, true, -2147483647 - 1, -99999999999.0 }, { u"\uFF11", false, false, 0, 0 }, // a full-width digit
	};
	for (const auto& Case : Cases)
	{
		const FString Text = Case.Text;
		EXPECT_EQ(Text.IsNumeric(), Case.bNumeric) << TCHAR_TO_UTF8(*Text);
		EXPECT_EQ(Text.ToBool(), Case.bTrue) << TCHAR_TO_UTF8(*Text);
		EXPECT_EQ(FCString::Atoi(*Text), Case.Integer) << TCHAR_TO_UTF8(*Text);
		EXPECT_EQ(FCString::Atod(*Text), Case.Number) << TCHAR_TO_UTF8(*Text);
	}
	EXPECT_EQ(FCString::Atoi64(TEXT("-9223372036854775808")), std::numeric_limits<int64>::min());

	const TCHAR* const Text = TEXT("  ff zz");
	TCHAR* End = nullptr;
	EXPECT_EQ(FCString::Strtoi(Text, &End, 16), 255);
	EXPECT_EQ(End, Text + 4);
	EXPECT_EQ(FCString::Strtoi(Text + 4, &End, 16), 0);
	EXPECT_EQ(End, Text + 4) << "no digits: the end is the start";
}

TEST(String, SearchesOfTheCLibrary)
{
	const TCHAR* const Text = TEXT("Hello hello");
	EXPECT_EQ(FCString::Strstr(Text, TEXT("hello")), Text + 6);
	EXPECT_EQ(FCString::Stristr(Text, TEXT("HELLO")), Text);
	EXPECT_EQ(FCString::Strstr(Text, TEXT("x")), nullptr);
	EXPECT_EQ(FCString::Strchr(Text, 'h'), Text + 6);
	EXPECT_EQ(FCString::Strchr(Text, 0), Text + 11);
	EXPECT_EQ(FCString::Strchr(Text, 'x'), nullptr);
	EXPECT_EQ(FCString::Stricmp(TEXT("ÄB"), TEXT("äb")), 0);
	EXPECT_LT(FCString::Stricmp(TEXT("ab"), TEXT("ABC")), 0);
	EXPECT_EQ(FCString::Strnicmp(TEXT("abX"), TEXT("ABy"), 2), 0);
	EXPECT_EQ(FCString::Strncmp(TEXT("abX"), TEXT("aby"), 2), 0);
	EXPECT_NE(FCString::Strncmp(TEXT("abX"), TEXT("aby"), 3), 0);
}

TEST(String, SearchAgreesWithThePlainOne)
{
	std::mt19937 Random(7);
	const auto Text = [&Random](uint32 Most)
	{
		FString Result;
		for (auto Left = Random() % (Most + 1); Left > 0; --Left)
		{
			Result.AppendChar(TEXT("aAbÄä")[Random() % 5]);
		}
		return Result;
	};
	for (int32 Round = 0; Round < 20000; ++Round)
	{
		const FString Hay = Text(12);
		const FString Needle = Text(3);
		const std::u16string LowerHay = Hay.ToLower().Native();
		const std::u16string LowerNeedle = Needle.ToLower().Native();
		const auto First = static_cast<int32>(LowerHay.find(LowerNeedle));
		const auto Last = static_cast<int32>(LowerHay.rfind(LowerNeedle));
		ASSERT_EQ(Hay.Find(Needle), First) << TCHAR_TO_UTF8(*Hay) << " " << TCHAR_TO_UTF8(*Needle);
		ASSERT_EQ(Hay.Find(Needle, ESearchCase::IgnoreCase, ESearchDir::FromEnd), Last) << TCHAR_TO_UTF8(*Hay);
		ASSERT_EQ(Hay.Find(Needle, ESearchCase::CaseSensitive), static_cast<int32>(Hay.Native().find(Needle.Native())));
	}
}

TEST(StringView, CutsAndCompares)
{
	FStringView View(TEXT("Header.h"));
	EXPECT_TRUE(View.Left(6).Equals(TEXT("Header")));
	EXPECT_FALSE(View.Left(6).Equals(TEXT("header")));
	EXPECT_TRUE(View.Left(6).Equals(TEXT("header"), ESearchCase::IgnoreCase));
	EXPECT_TRUE(View.StartsWith(TEXT("Head")));
	EXPECT_FALSE(View.StartsWith(TEXT("Header.hpp")));
	EXPECT_TRUE(View.RightChop(99).IsEmpty());
	View.LeftChopInline(2);
	View.RightChopInline(4);
	EXPECT_TRUE(View.Equals(TEXT("er")));
	View.LeftChopInline(99);
	EXPECT_TRUE(View.IsEmpty());
}
}
