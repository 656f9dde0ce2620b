#pragma once

#include "Templates/Function.h"

/**
 * The main loop's parts. A frame gives waiting log lines to their devices, tells that it begins (FCoreDelegates), runs the game thread's
 * tasks and ticks the core ticker.
 * Between two frames the loop sleeps until something is due by the platform's clock, but no longer than 16 real milliseconds.
 * Game thread, except Wake.
 */
struct CORE_API FMainLoop
{
	/** One frame. */
	static void Tick();
	/** Sleeps until the next frame is worth while, or Wake is called; at once when it was called since the last sleep. */
	static void Wait();
	/** Ends a sleep: there is something to do. Any thread. */
	static void Wake();

	/** Frames for so many seconds of the platform's clock; a manual clock is moved on, from one due element to the next. */
	static void RunFor(double PlatformSeconds);
	/** Frames until Done answers true, asked after each frame; false when so many real seconds have gone by. */
	static bool RunUntil(TFunctionRef<bool()> Done, double RealSeconds);

private:
	static double SecondsUntilDue();
};
