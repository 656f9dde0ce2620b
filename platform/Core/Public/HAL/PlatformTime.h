#pragma once

#include "CoreTypes.h"

struct CORE_API FPlatformTime
{
	/** Seconds since some moment before the process began; never goes back. Any thread. */
	static double Seconds();
};
