#include "TestSupport.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
TEST(Format, Printf)
{
	const TCHAR* const Null = nullptr;
	const struct
	{
		FString Text;
		const TCHAR* Wanted;
	} Cases[] = {
		{ FString::Printf(TEXT("plain")), u"plain" },
		{ FString::Printf(TEXT("")), u"" },
		{ FString::Printf(TEXT("100%%")), u"100%" },
		{ FString::Printf(TEXT("<%s>"), TEXT("Größe \U0001F600")), u"<Größe \U0001F600>" },
		{ FString::Printf(TEXT("<%6s|%-6s>"), TEXT("äb"), TEXT("äb")), u"<    äb|äb    >" },
		{ FString::Printf(TEXT("<%.2s|%.0s|%5.1s>"), TEXT("abc"), TEXT("abc"), TEXT("abc")), u"<ab||    a>" },
		{ FString::Printf(TEXT("<%*s|%-*s|%*s>"), 4, TEXT("a"), 3, TEXT("b"), -3, TEXT("c")), u"<   a|b  |c  >" },
		{ FString::Printf(TEXT("<%.*s|%.*s>"), 1, TEXT("abc"), -1, TEXT("abc")), u"<a|abc>" },
		{ FString::Printf(TEXT("%s"), Null), u"(null)" },
		{ FString::Printf(TEXT("%hs"), "Größe"), u"Größe" },
		{ FString::Printf(TEXT("%ls"), TEXT("wide")), u"wide" },
		{ FString::Printf(TEXT("%c%c"), TEXT('a'), TEXT('ä')), u"aä" },
		{ FString::Printf(TEXT("%d %i %u"), -1, 2, 3000000000u), u"-1 2 3000000000" },
		{ FString::Printf(TEXT("%5d|%-5d|%05d|%+d|% d"), 42, 42, 42, 42, 42), u"   42|42   |00042|+42| 42" },
		{ FString::Printf(TEXT("%x %X %08X %#x %o"), 255, 255, 255, 255, 8), u"ff FF 000000FF 0xff 10" },
		{ FString::Printf(TEXT("%lld %llu"), std::numeric_limits<int64>::min(), std::numeric_limits<uint64>::max()),
			u"-9223372036854775808 18446744073709551615" },
		{ FString::Printf(TEXT("%ld %zu"), static_cast<int64>(-5000000000), static_cast<SIZE_T>(5000000000)), u"-5000000000 5000000000" },
		{ FString::Printf(TEXT("%I64d"), static_cast<int64>(5000000000)), u"5000000000" },
		{ FString::Printf(TEXT("%f %.2f %10.3f|%-8.1f|"), 1.5, 2.345f, 3.14159, 2.0), u"1.500000 2.35      3.142|2.0     |" },
		{ FString::Printf(TEXT("%g %e %G"), 0.0001, 12345.678, 1e20), u"0.0001 1.234568e+04 1E+20" },
		{ FString::Printf(TEXT("%.17g"), 0.1), u"0.10000000000000001" },
		{ FString::Printf(TEXT("%d%s%d"), true, TEXT(","), false), u"1,0" },
		{ FString::Printf(TEXT("%d items (%.1f%%)"), 3, 12.5), u"3 items (12.5%)" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Case.Text.Native(), Case.Wanted);
	}
}

TEST(Format, LongResultsAreWhole)
{
	const FString Long = FString::ChrN(100000, 'x');
	EXPECT_EQ(FString::Printf(TEXT("%s%s"), *Long, *Long).Len(), 200000);
	EXPECT_EQ(FString::Printf(TEXT("%f"), 1e300).Len(), 308);
	EXPECT_EQ(FString::Printf(TEXT("%64d|"), 1).Len(), 65);
	FString Text = TEXT("a");
	Text.Appendf(TEXT("-%d"), 5).Appendf(TEXT("-%s"), *Text);
	EXPECT_EQ(Text.Native(), u"a-5-a-5");
}

TEST(Format, SanitizeFloat)
{
	const struct
	{
		double Number;
		int32 Digits;
		const TCHAR* Wanted;
	} Cases[] = {
		{ 5.0, 1, u"5.0" },
		{ 5.0, 0, u"5" },
		{ 0.1, 1, u"0.1" },
		{ 0.5, 0, u"0.5" },
		{ 1.25, 4, u"1.2500" },
		{ 100.0, 0, u"100" },
		{ 1e20, 1, u"100000000000000000000.0" },
		{ 1e-7, 1, u"0.0" },
		{ -1e-7, 1, u"0.0" },
		{ -0.0, 1, u"0.0" },
		{ -0.0, 0, u"0" },
		{ -0.5, 1, u"-0.5" },
		{ 0.0000005, 1, u"0.0" }, // the nearest double lies below
		{ 0.1234567, 1, u"0.123457" },
		{ -20.0, 0, u"-20" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FString::SanitizeFloat(Case.Number, Case.Digits).Native(), Case.Wanted) << Case.Number;
	}
}

TEST(Format, LexToString)
{
	EXPECT_EQ(LexToString(std::numeric_limits<int32>::min()).Native(), u"-2147483648");
	EXPECT_EQ(LexToString(std::numeric_limits<int64>::min()).Native(), u"-9223372036854775808");
	EXPECT_EQ(LexToString(true).Native(), u"true");
	EXPECT_EQ(LexToString(2.5).Native(), u"2.5");
}
}
