#include "TestSupport.h"

#include <gtest/gtest.h>

#include <random>

using namespace std::string_literals;

namespace
{
/** The code point that a valid sequence of Length bytes at At holds, by the table of well-formed sequences; -1 when it is none. */
int64 WellFormed(std::string_view Bytes, SIZE_T At, SIZE_T Length)
{
	const struct
	{
		SIZE_T Length;
		uint8 LeadLow, LeadHigh, SecondLow, SecondHigh;
	} Rows[] = {
		{ 1, 0x00, 0x7F, 0, 0 },
		{ 2, 0xC2, 0xDF, 0x80, 0xBF },
		{ 3, 0xE0, 0xE0, 0xA0, 0xBF },
		{ 3, 0xE1, 0xEC, 0x80, 0xBF },
		{ 3, 0xED, 0xED, 0x80, 0x9F },
		{ 3, 0xEE, 0xEF, 0x80, 0xBF },
		{ 4, 0xF0, 0xF0, 0x90, 0xBF },
		{ 4, 0xF1, 0xF3, 0x80, 0xBF },
		{ 4, 0xF4, 0xF4, 0x80, 0x8F },
	};
	const auto Byte = [&](SIZE_T Index) { return static_cast<uint8>(Bytes[At + Index]); };
	for (const auto& Row : Rows)
	{
		bool bFits = Row.Length == Length && At + Length <= Bytes.size() && Byte(0) >= Row.LeadLow && Byte(0) <= Row.LeadHigh;
		bFits = bFits && (Length < 2 || (Byte(1) >= Row.SecondLow && Byte(1) <= Row.SecondHigh));
		for (SIZE_T Index = 2; bFits && Index < Length; ++Index)
		{
			bFits = Byte(Index) >= 0x80 && Byte(Index) <= 0xBF;
		}
		if (bFits)
		{
			int64 Code = Length == 1 ? Byte(0) : Byte(0) & (0x7F >> Length);
			for (SIZE_T Index = 1; Index < Length; ++Index)
			{
				Code = Code * 64 + (Byte(Index) - 0x80);
			}
			return Code;
		}
	}
	return -1;
}

std::u16string Units(int64 Code)
{
	if (Code < 0x10000)
	{
		return std::u16string(1, static_cast<TCHAR>(Code));
	}
	return { static_cast<TCHAR>(0xD7C0 + Code / 0x400), static_cast<TCHAR>(0xDC00 + Code % 0x400) };
}

/** Byte by byte, as plainly as can be. */
std::u16string PlainDecode(std::string_view Bytes, bool& bOutValid)
{
	std::u16string Result;
	bOutValid = true;
	for (SIZE_T At = 0; At < Bytes.size();)
	{
		SIZE_T Length = 4;
		while (Length > 0 && WellFormed(Bytes, At, Length) < 0)
		{
			--Length;
		}
		bOutValid = bOutValid && Length > 0;
		Result += Length > 0 ? Units(WellFormed(Bytes, At, Length)) : u"\uFFFD";
		At += std::max<SIZE_T>(Length, 1);
	}
	return Result;
}

void ExpectDecodesAsPlain(const std::string& Bytes)
{
	bool bValid = false;
	const std::u16string Wanted = PlainDecode(Bytes, bValid);
	ASSERT_EQ(FUtf8::Decode(Bytes).Native(), Wanted) << testing::PrintToString(Bytes);
	FString Text;
	ASSERT_EQ(FUtf8::TryDecode(Bytes, Text), bValid) << testing::PrintToString(Bytes);
	if (bValid)
	{
		ASSERT_EQ(Text.Native(), Wanted);
		ASSERT_EQ(FUtf8::Encode(Text), Bytes);
	}
}

TEST(Utf8, EveryCodePointGoesThereAndBack)
{
	for (int64 Code = 0; Code < 0x110000; ++Code)
	{
		if (Code < 0xD800 || Code > 0xDFFF)
		{
			const std::u16string Text = Units(Code);
			ASSERT_EQ(FUtf8::Decode(FUtf8::Encode(Text)).Native(), Text) << Code;
		}
	}
	EXPECT_EQ(FUtf8::Encode(std::u16string_view(u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF")),
		"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Utf8, EachBadByteBecomesOneReplacement)
{
	const struct
	{
		std::string Bytes;
		const TCHAR* Wanted;
	} Cases[] = {
		{ "\x80", u"\uFFFD" },
		{ "a\xC3", u"a\uFFFD" },
		{ "\xE2\x82", u"\uFFFD\uFFFD" },
		{ "\xC0\xAF", u"\uFFFD\uFFFD" },                     // overlong
		{ "\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD" },           // overlong
		{ "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD" },           // a surrogate
		{ "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD" }, // beyond the last code point
		{ "\xF8\x88\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD" },
		{ "\xFF\xFE", u"\uFFFD\uFFFD" },
		{ "\xE2\x28\xA1", u"\uFFFD(\uFFFD" },
		{ "\xC3\xC3\xA4", u"\uFFFDä" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FUtf8::Decode(Case.Bytes).Native(), Case.Wanted) << testing::PrintToString(Case.Bytes);
		FString Text;
		EXPECT_FALSE(FUtf8::TryDecode(Case.Bytes, Text));
		ExpectDecodesAsPlain(Case.Bytes);
	}
}

TEST(Utf8, RunsOfAsciiEndAnywhere)
{
	// The decoder takes blocks of eight bytes at a time: every offset of a bad or wide character around their edges.
	const std::string Marks[] = { "", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xF0\x9F\x98", "\x80", "\0"s };
	for (const std::string& Mark : Marks)
	{
		for (SIZE_T Before = 0; Before < 26; ++Before)
		{
			for (SIZE_T After = 0; After < 26; ++After)
			{
				ExpectDecodesAsPlain(std::string(Before, 'a') + Mark + std::string(After, 'b') + Mark);
			}
		}
	}
}

TEST(Utf8, RandomBytesAsPlain)
{
	std::mt19937 Random(1);
	const char Likely[] = "a\x7F\x80\xBF\xC2\xE0\xED\xEF\xF0\xF4\xA0\x90\x9F";
	for (int32 Round = 0; Round < 50000; ++Round)
	{
		std::string Bytes(Random() % 40, 'x');
		for (char& Byte : Bytes)
		{
			Byte = Random() % 3 == 0 ? static_cast<char>(Random()) : Likely[Random() % (sizeof(Likely) - 1)];
		}
		ASSERT_NO_FATAL_FAILURE(ExpectDecodesAsPlain(Bytes));
	}
}

TEST(Utf8, RandomTextsAsPlain)
{
	std::mt19937 Random(2);
	for (int32 Round = 0; Round < 2000; ++Round)
	{
		// Lengths around the encoder's buffer too.
		const SIZE_T Length = Round % 10 == 0 ? 4000 + Random() % 200 : Random() % 30;
		std::u16string Text(Length, u'a');
		for (TCHAR& Char : Text)
		{
			const auto Kind = Random() % 6;
			Char = static_cast<TCHAR>(Kind < 3 ? Random() % 128 : (Kind == 3 ? 0xD800 + Random() % 0x800 : Random()));
		}
		std::string Wanted;
		for (SIZE_T At = 0; At < Length; ++At)
		{
			const bool bHigh = Text[At] >= 0xD800 && Text[At] < 0xDC00;
			const bool bPair = bHigh && At + 1 < Length && Text[At + 1] >= 0xDC00 && Text[At + 1] < 0xE000;
			const bool bSurrogate = Text[At] >= 0xD800 && Text[At] < 0xE000;
			const char32_t Code =
				bPair ? 0x10000u + (Text[At] - 0xD800u) * 0x400u + (Text[At + 1] - 0xDC00u) : (bSurrogate ? 0xFFFDu : Text[At]);
			const auto Put = [&Wanted](char32_t Byte) { Wanted += static_cast<char>(Byte); };
			if (Code < 0x80)
			{
				Put(Code);
			}
			else if (Code < 0x800)
			{
				Put(0xC0 + Code / 64);
				Put(0x80 + Code % 64);
			}
			else
			{
				if (Code < 0x10000)
				{
					Put(0xE0 + Code / 4096);
				}
				else
				{
					Put(0xF0 + Code / 262144);
					Put(0x80 + Code / 4096 % 64);
				}
				Put(0x80 + Code / 64 % 64);
				Put(0x80 + Code % 64);
			}
			At += bPair;
		}
		std::string Bytes = "before ";
		FUtf8::AppendTo(Bytes, Text);
		ASSERT_EQ(Bytes, "before " + Wanted);
	}
}

TEST(Utf8, MacrosTakeTextsWithTheirLength)
{
	EXPECT_STREQ(TCHAR_TO_UTF8(TEXT("Größe")), "Größe");
	EXPECT_EQ(FString(UTF8_TO_TCHAR("Größe")).Native(), u"Größe");
	EXPECT_EQ(FTCHARToUTF8(TEXT("a\0ö"), 3).Length(), 4);
	EXPECT_EQ(FUTF8ToTCHAR("a\0ö", 4).Length(), 3);
	EXPECT_EQ(FString("Größe").Native(), u"Größe");
}
}
