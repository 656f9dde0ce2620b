#pragma once

#include "CoreTypes.h"

/** True in an editor; the stand-alone editor is one. */
extern CORE_API bool GIsEditor;
/** Set when the main loop is to end. */
extern CORE_API bool GIsRequestingExit;

inline bool IsEngineExitRequested()
{
	return GIsRequestingExit;
}

CORE_API void RequestEngineExit(const TCHAR* Reason);

/** Whether the caller runs on the thread that runs the main loop (the one that loaded Core). */
CORE_API bool IsInGameThread();
