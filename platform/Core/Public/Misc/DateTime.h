#pragma once

#include "Containers/UnrealString.h"
#include "Misc/Timespan.h"

class FOutputDevice;
class UObject;

/** A date and time of day of the Gregorian calendar, without a time zone: ticks of 100 nanoseconds since 1 January of the year 1. */
struct CORE_API FDateTime
{
	constexpr FDateTime() = default;
	constexpr explicit FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{
	}
	/** The parts must make a valid date. */
	FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** The local time. */
	static FDateTime Now();
	static FDateTime UtcNow();
	/** Seconds since 1 January 1970. */
	static FDateTime FromUnixTimestamp(int64 Seconds);
	static constexpr FDateTime MinValue() { return FDateTime(0); }

	constexpr int64 GetTicks() const { return Ticks; }
	int64 ToUnixTimestamp() const;
	/** As "2026.01.31-12.00.00". */
	FString ToString() const;
	/**
	 * After each "%": a "am" or "pm", A the same in capitals, d day, D day of the year, m month, y year of two digits, Y year,
	 * h hour of 12, H hour, M minute, S second, s millisecond; any other character stands for itself.
	 */
	FString ToString(const TCHAR* Format) const;
	/** "2026.01.31-12.00.00", with or without ".123" behind it. @return false, with nothing written, for any other text */
	static bool Parse(const FString& Text, FDateTime& OutDateTime);
	// As a property's value: with milliseconds.
	bool ExportTextItem(FString& ValueStr, const FDateTime& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	constexpr FDateTime operator+(FTimespan Other) const { return FDateTime(Ticks + Other.GetTicks()); }
	constexpr FDateTime operator-(FTimespan Other) const { return FDateTime(Ticks - Other.GetTicks()); }
	constexpr FTimespan operator-(FDateTime Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr auto operator<=>(const FDateTime&) const = default;

private:
	int64 Ticks = 0;
};
