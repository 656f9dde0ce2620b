#include "Misc/Char.h"
#include "Misc/DateTime.h"

#include <chrono>
#include <cstdio>
#include <string>

namespace
{
/** What a time may consist of as a property's value: up to the next comma or bracket. */
FString ReadWord(const TCHAR* Buffer)
{
	const TCHAR* End = Buffer;
	while (*End != '\0' && *End != ',' && *End != ')' && !FChar::IsWhitespace(*End) && End - Buffer < 64)
	{
		++End;
	}
	return FString(static_cast<int32>(End - Buffer), Buffer);
}

/** Text as ASCII for sscanf; empty for one with other characters, which is no time. */
std::string ToAscii(const FString& Text)
{
	std::string Result;
	for (const TCHAR Char : Text)
	{
		if (Char > 0x7F)
		{
			return {};
		}
		Result += static_cast<char>(Char);
	}
	return Result;
}

template <typename T>
bool ImportWord(const TCHAR*& Buffer, T& Value)
{
	const FString Word = ReadWord(Buffer);
	if (!T::Parse(Word, Value))
	{
		return false;
	}
	Buffer += Word.Len();
	return true;
}

bool IsBetween(int32 Value, int32 Low, int32 High)
{
	return Value >= Low && Value <= High;
}
}

bool FDateTime::Parse(const FString& Text, FDateTime& OutDateTime)
{
	int32 Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0, Second = 0, Millisecond = 0, Length = 0;
	const std::string Ascii = ToAscii(Text);
	const int Count = std::sscanf(
		Ascii.c_str(), "%4d.%2d.%2d-%2d.%2d.%2d%n.%3d%n", &Year, &Month, &Day, &Hour, &Minute, &Second, &Length, &Millisecond, &Length);
	const std::chrono::year_month_day Date(
		std::chrono::year{ Year }, std::chrono::month{ static_cast<unsigned>(Month) }, std::chrono::day{ static_cast<unsigned>(Day) });
	const bool bTime = IsBetween(Hour, 0, 23) && IsBetween(Minute, 0, 59) && IsBetween(Second, 0, 59) && Millisecond >= 0;
	if (Count < 6 || Length != Text.Len() || Year < 1 || !Date.ok() || !bTime)
	{
		return false;
	}
	OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond);
	return true;
}

bool FDateTime::ExportTextItem(FString& ValueStr, const FDateTime&, UObject*, int32, UObject*) const
{
	ValueStr += ToString(TEXT("%Y.%m.%d-%H.%M.%S.%s"));
	return true;
}

bool FDateTime::ImportTextItem(const TCHAR*& Buffer, int32, UObject*, FOutputDevice*)
{
	return ImportWord(Buffer, *this);
}

FString FTimespan::ToString() const
{
	const auto Part = [this](int64 Unit, int64 Count) { return static_cast<long long>(FMath::Abs(Ticks / Unit % Count)); };
	const int64 Days = FMath::Abs(Ticks / ETimespan::TicksPerDay);
	FString Result = Ticks < 0 ? TEXT("-") : TEXT("");
	if (Days != 0)
	{
		Result.Appendf(TEXT("%lld."), static_cast<long long>(Days));
	}
	return Result.Appendf(TEXT("%02lld:%02lld:%02lld.%07lld"), Part(ETimespan::TicksPerHour, 24), Part(ETimespan::TicksPerMinute, 60),
		Part(ETimespan::TicksPerSecond, 60), Part(1, ETimespan::TicksPerSecond));
}

bool FTimespan::Parse(const FString& Text, FTimespan& OutTimespan)
{
	const bool bNegative = Text.StartsWith(TEXT("-"));
	const std::string Ascii = ToAscii(Text.RightChop(bNegative));
	int32 Days = 0, Hours = 0, Minutes = 0, Seconds = 0, Rest = 0, Length = 0;
	if (Ascii.find_first_not_of("0123456789:.") != std::string::npos)
	{
		return false;
	}
	if (std::sscanf(Ascii.c_str(), "%8d.%2d:%2d:%2d.%7d%n", &Days, &Hours, &Minutes, &Seconds, &Rest, &Length) < 5)
	{
		Days = 0;
		Length = 0;
		std::sscanf(Ascii.c_str(), "%2d:%2d:%2d.%7d%n", &Hours, &Minutes, &Seconds, &Rest, &Length);
	}
	const bool bWhole = Length > 0 && static_cast<SIZE_T>(Length) == Ascii.size() && Ascii.size() - Ascii.find_last_of('.') == 8;
	// No more days than the ticks can count.
	if (!bWhole || Days > 10675198 || Hours > 23 || Minutes > 59 || Seconds > 59)
	{
		return false;
	}
	const int64 Ticks = Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute +
		Seconds * ETimespan::TicksPerSecond + Rest;
	OutTimespan = FTimespan(bNegative ? -Ticks : Ticks);
	return true;
}

bool FTimespan::ExportTextItem(FString& ValueStr, const FTimespan&, UObject*, int32, UObject*) const
{
	ValueStr += ToString();
	return true;
}

bool FTimespan::ImportTextItem(const TCHAR*& Buffer, int32, UObject*, FOutputDevice*)
{
	return ImportWord(Buffer, *this);
}
