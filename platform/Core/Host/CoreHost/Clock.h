#pragma once

#include "Misc/DateTime.h"

/**
 * The platform's clock, which FPlatformTime and FDateTime show. It runs with the machine's, as many times as fast as it is told, or
 * stands still and moves only by Advance. Any thread.
 */
struct CORE_API FHostClock
{
	/** How many platform seconds a real second has; above 0. */
	static void SetRate(double Rate);
	static double GetRate();

	/** A manual clock stands still between two calls of Advance. */
	static void SetManual(bool bManual);
	static bool IsManual();
	/** Moves a manual clock on. */
	static void Advance(double Seconds);

	/** From now on the date is this one, in UTC, and goes on with the platform's clock; the machine's date no longer counts. */
	static void SetDate(FDateTime Utc);
	/** Back to the machine's date. */
	static void ClearDate();

	static double Seconds();
	static FDateTime UtcNow();
};
