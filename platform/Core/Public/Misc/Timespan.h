#pragma once

#include "CoreTypes.h"

#include <compare>

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

	constexpr auto operator<=>(const FTimespan&) const = default;

private:
	int64 Ticks = 0;
};
