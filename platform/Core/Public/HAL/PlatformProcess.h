#pragma once

#include "CoreTypes.h"

struct CORE_API FPlatformProcess
{
	/** Blocks the calling thread. */
	static void Sleep(float Seconds);
	/** What relative paths are relative to: the folder that the process was started in, absolute, with "/" at its end. */
	static const TCHAR* BaseDir();
};
