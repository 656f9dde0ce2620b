#pragma once

#include "Delegates/Delegate.h"

/** What the main loop tells. Game thread. */
struct CORE_API FCoreDelegates
{
	/** Before all else that a frame does. */
	static TMulticastDelegate<> OnBeginFrame;
};
