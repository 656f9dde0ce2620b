#pragma once

#include "Containers/UnrealString.h"

#include <compare>

class FOutputDevice;
class UObject;

/** Ticks are of 100 nanoseconds. */
namespace ETimespan
{
inline constexpr int64 TicksPerMillisecond = 10000;
inline constexpr int64 TicksPerSecond = 1000 * TicksPerMillisecond;
inline constexpr int64 TicksPerMinute = 60 * TicksPerSecond;
inline constexpr int64 TicksPerHour = 60 * TicksPerMinute;
inline constexpr int64 TicksPerDay = 24 * TicksPerHour;
}

/** A length of time, possibly negative. */
struct FTimespan
{
	constexpr FTimespan() = default;
	constexpr explicit FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}
	static constexpr FTimespan FromDays(double Days) { return FTimespan(static_cast<int64>(Days * ETimespan::TicksPerDay)); }
	static constexpr FTimespan FromHours(double Hours) { return FTimespan(static_cast<int64>(Hours * ETimespan::TicksPerHour)); }
	static constexpr FTimespan FromMinutes(double Minutes) { return FTimespan(static_cast<int64>(Minutes * ETimespan::TicksPerMinute)); }
	static constexpr FTimespan FromSeconds(double Seconds) { return FTimespan(static_cast<int64>(Seconds * ETimespan::TicksPerSecond)); }

	constexpr int64 GetTicks() const { return Ticks; }
	constexpr double GetTotalDays() const { return static_cast<double>(Ticks) / ETimespan::TicksPerDay; }
	constexpr double GetTotalHours() const { return static_cast<double>(Ticks) / ETimespan::TicksPerHour; }
	constexpr double GetTotalMinutes() const { return static_cast<double>(Ticks) / ETimespan::TicksPerMinute; }
	constexpr double GetTotalSeconds() const { return static_cast<double>(Ticks) / ETimespan::TicksPerSecond; }

	/** "1.02:03:04.0050000": days when there are any, hours, minutes, seconds; negative ones with a "-" before. */
	CORE_API FString ToString() const;
	/** What ToString gives. @return false, with nothing written, for any other text */
	CORE_API static bool Parse(const FString& Text, FTimespan& OutTimespan);
	// As a property's value.
	CORE_API bool ExportTextItem(
		FString& ValueStr, const FTimespan& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	CORE_API bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	constexpr auto operator<=>(const FTimespan&) const = default;

private:
	int64 Ticks = 0;
};
