#include "NightRules.h"

namespace
{
constexpr float DayHours = 24.0f;
/** Dusk and the small hours are this long each. */
constexpr float EdgeHours = 1.0f;

/** Hours from one time of the clock to the next time it shows the other. */
float HoursBetween(float From, float To)
{
	const float Difference = To - From;
	return Difference < 0.0f ? Difference + DayHours : Difference;
}
}

float UNightRules::GetLength() const
{
	return HoursBetween(DuskHour, DawnHour);
}

ENightPhase UNightRules::GetPhase(float Hour) const
{
	const float Since = HoursBetween(DuskHour, Hour);
	const float Length = GetLength();
	if (Since >= Length)
	{
		return ENightPhase::Day;
	}
	if (Since < EdgeHours)
	{
		return ENightPhase::Dusk;
	}
	return Length - Since <= EdgeHours ? ENightPhase::SmallHours : ENightPhase::DeepNight;
}

bool UNightRules::IsWon(int32 LanternsKept) const
{
	return LanternsKept >= LanternsToKeep;
}
