#include "HAL/PlatformTime.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "TestSupport.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

namespace
{
TEST(DateTime, Formats)
{
	const FDateTime Afternoon(2026, 1, 31, 15, 4, 5, 67);
	const FDateTime Midnight(2024, 12, 31);
	const FDateTime Noon(1999, 3, 1, 12, 0, 0);
	const struct
	{
		FDateTime Date;
		const TCHAR* Format;
		const TCHAR* Text;
	} Cases[] = {
		{ Afternoon, u"%Y-%m-%d", u"2026-01-31" },
		{ Afternoon, u"%H:%M:%S", u"15:04:05" },
		{ Afternoon, u"%Y%m%d_%H%M%S", u"20260131_150405" },
		{ Afternoon, u"%h%a %A .%s", u"03pm PM .067" },
		{ Midnight, u"%h:%M%a", u"12:00am" },
		{ Noon, u"%h:%M%A", u"12:00PM" },
		{ Midnight, u"%D %y", u"366 24" },
		{ Noon, u"%D %y", u"060 99" },
		{ Noon, u"100%% %q %", u"100% q %" },
		{ FDateTime::MinValue(), u"%Y.%m.%d-%H.%M.%S", u"0001.01.01-00.00.00" },
	};
	for (const auto& Case : Cases)
	{
		const FString Text = Case.Date.ToString(Case.Format);
		EXPECT_TRUE(Text.Equals(Case.Text)) << TCHAR_TO_UTF8(*Text);
	}
	EXPECT_TRUE(Afternoon.ToString().Equals(TEXT("2026.01.31-15.04.05")));
}

TEST(DateTime, CountsTicksSinceTheYearOne)
{
	EXPECT_EQ(FDateTime(1970, 1, 1).GetTicks(), 621355968000000000);
	EXPECT_EQ(FDateTime(2026, 1, 31).ToUnixTimestamp(), 1769817600);
	EXPECT_EQ(FDateTime::FromUnixTimestamp(1769817600).GetTicks(), FDateTime(2026, 1, 31).GetTicks());
	EXPECT_DOUBLE_EQ((FDateTime(2024, 3, 1) - FDateTime(2024, 2, 1, 12)).GetTotalDays(), 28.5);
	EXPECT_TRUE(FDateTime(2024, 3, 1) - FTimespan::FromDays(1) == FDateTime(2024, 2, 29));
}

TEST(DateTime, NowIsLocal)
{
	const char* const Old = std::getenv("TZ");
	const std::string Kept = Old ? Old : "";
	::setenv("TZ", "XYZ-5:30", 1);
	::tzset();
	FHostClock::SetDate(FDateTime(2026, 1, 31, 20, 0, 0));
	const FString Local = FDateTime::Now().ToString(TEXT("%Y-%m-%d %H:%M"));
	FHostClock::ClearDate();
	Old ? ::setenv("TZ", Kept.c_str(), 1) : ::unsetenv("TZ");
	::tzset();
	EXPECT_EQ(Local, FString(TEXT("2026-02-01 01:30")));
	EXPECT_NEAR(static_cast<double>(FDateTime::UtcNow().ToUnixTimestamp()), static_cast<double>(std::time(nullptr)), 2.0);
}

TEST(Clock, RunsAtItsRateAndByHand)
{
	const double Start = FPlatformTime::Seconds();
	FHostClock::SetRate(1000.0);
	while (FPlatformTime::Seconds() < Start + 10.0)
	{
	}
	FHostClock::SetRate(1.0);
	EXPECT_GE(FPlatformTime::Seconds(), Start + 10.0);

	FManualClock Manual;
	const double Before = FPlatformTime::Seconds();
	FHostClock::SetDate(FDateTime(2026, 1, 1));
	EXPECT_EQ(FPlatformTime::Seconds(), Before);
	FHostClock::Advance(86400.0);
	EXPECT_DOUBLE_EQ(FPlatformTime::Seconds(), Before + 86400.0);
	EXPECT_EQ(FDateTime::UtcNow().ToString(TEXT("%Y-%m-%d")), FString(TEXT("2026-01-02")));
	FHostClock::ClearDate();
}

TEST(Guid, Formats)
{
	const FGuid Guid(0x0123abcd, 0x456789ab, 0xcdef0123, 0x00000004);
	EXPECT_TRUE(Guid.ToString().Equals(TEXT("0123ABCD456789ABCDEF012300000004")));
	EXPECT_TRUE(Guid.ToString(EGuidFormats::DigitsLower).Equals(TEXT("0123abcd456789abcdef012300000004")));
	EXPECT_TRUE(Guid.ToString(EGuidFormats::DigitsWithHyphens).Equals(TEXT("0123ABCD-4567-89AB-CDEF-012300000004")));
	FString Text = TEXT("id ");
	Guid.AppendString(Text, EGuidFormats::DigitsWithHyphensLower);
	EXPECT_TRUE(Text.Equals(TEXT("id 0123abcd-4567-89ab-cdef-012300000004")));
	EXPECT_FALSE(FGuid().IsValid());
	EXPECT_NE(FGuid::NewGuid().ToString(), FGuid::NewGuid().ToString());
}
}
