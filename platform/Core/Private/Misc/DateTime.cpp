#include "Misc/DateTime.h"

#include "CoreHost/Clock.h"

#include <chrono>
#include <ctime>

namespace
{
using namespace std::chrono;

constexpr sys_days FirstDay = year{ 1 } / January / 1;
constexpr int64 UnixEpochTicks = (sys_days{} - FirstDay).count() * ETimespan::TicksPerDay;

struct FParts
{
	year_month_day Date;
	int32 DayOfYear;
	int32 Hour, Minute, Second, Millisecond;
};

FParts Split(int64 Ticks)
{
	const sys_days Day = FirstDay + days(Ticks / ETimespan::TicksPerDay);
	const int64 InDay = Ticks % ETimespan::TicksPerDay;
	FParts Parts;
	Parts.Date = Day;
	Parts.DayOfYear = static_cast<int32>((Day - sys_days(Parts.Date.year() / January / 1)).count()) + 1;
	Parts.Hour = static_cast<int32>(InDay / ETimespan::TicksPerHour);
	Parts.Minute = static_cast<int32>(InDay / ETimespan::TicksPerMinute % 60);
	Parts.Second = static_cast<int32>(InDay / ETimespan::TicksPerSecond % 60);
	Parts.Millisecond = static_cast<int32>(InDay / ETimespan::TicksPerMillisecond % 1000);
	return Parts;
}

void AppendNumber(FString& Out, int32 Number, int32 Digits)
{
	Out.Appendf(TEXT("%0*d"), Digits, Number);
}

void AppendPart(FString& Out, TCHAR Directive, const FParts& Parts)
{
	const int32 Year = static_cast<int32>(Parts.Date.year());
	switch (Directive)
	{
	case 'a': Out += Parts.Hour < 12 ? TEXT("am") : TEXT("pm"); break;
	case 'A': Out += Parts.Hour < 12 ? TEXT("AM") : TEXT("PM"); break;
	case 'd': AppendNumber(Out, static_cast<int32>(static_cast<unsigned>(Parts.Date.day())), 2); break;
	case 'D': AppendNumber(Out, Parts.DayOfYear, 3); break;
	case 'm': AppendNumber(Out, static_cast<int32>(static_cast<unsigned>(Parts.Date.month())), 2); break;
	case 'y': AppendNumber(Out, Year % 100, 2); break;
	case 'Y': AppendNumber(Out, Year, 4); break;
	case 'h': AppendNumber(Out, (Parts.Hour + 11) % 12 + 1, 2); break;
	case 'H': AppendNumber(Out, Parts.Hour, 2); break;
	case 'M': AppendNumber(Out, Parts.Minute, 2); break;
	case 'S': AppendNumber(Out, Parts.Second, 2); break;
	case 's': AppendNumber(Out, Parts.Millisecond, 3); break;
	default: Out += Directive;
	}
}
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	const year_month_day Date = year(Year) / static_cast<int>(Month) / static_cast<int>(Day);
	check(Date.ok());
	Ticks = (sys_days(Date) - FirstDay).count() * ETimespan::TicksPerDay + Hour * ETimespan::TicksPerHour +
		Minute * ETimespan::TicksPerMinute + Second * ETimespan::TicksPerSecond + Millisecond * ETimespan::TicksPerMillisecond;
}

FDateTime FDateTime::UtcNow()
{
	return FHostClock::UtcNow();
}

FDateTime FDateTime::Now()
{
	const FDateTime Utc = UtcNow();
	const std::time_t Seconds = Utc.ToUnixTimestamp();
	std::tm Local = {};
	::localtime_r(&Seconds, &Local);
	return Utc + FTimespan(Local.tm_gmtoff * ETimespan::TicksPerSecond);
}

FDateTime FDateTime::FromUnixTimestamp(int64 Seconds)
{
	return FDateTime(UnixEpochTicks + Seconds * ETimespan::TicksPerSecond);
}

int64 FDateTime::ToUnixTimestamp() const
{
	return (Ticks - UnixEpochTicks) / ETimespan::TicksPerSecond;
}

FString FDateTime::ToString() const
{
	return ToString(TEXT("%Y.%m.%d-%H.%M.%S"));
}

FString FDateTime::ToString(const TCHAR* Format) const
{
	const FParts Parts = Split(Ticks);
	FString Result;
	for (; *Format; ++Format)
	{
		if (*Format == '%' && Format[1])
		{
			AppendPart(Result, *++Format, Parts);
		}
		else
		{
			Result += *Format;
		}
	}
	return Result;
}
