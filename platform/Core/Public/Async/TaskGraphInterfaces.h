#pragma once

#include "CoreGlobals.h"
#include "Containers/Array.h"
#include "Stats/Stats.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <atomic>

// Tasks for the game thread. There are no worker threads: what takes long belongs to the module that knows how to wait for it.

namespace ENamedThreads
{
enum Type : int32
{
	GameThread
};
}

/** Tells when a task has run. */
class FGraphEvent
{
public:
	/** Any thread. */
	bool IsComplete() const { return bComplete; }

private:
	friend class FGameThreadTasks;
	std::atomic<bool> bComplete = false;
};

using FGraphEventRef = TSharedPtr<FGraphEvent>;
using FGraphEventArray = TArray<FGraphEventRef>;

class CORE_API FFunctionGraphTask
{
public:
	/**
	 * Runs a function in the main loop's next frame, behind those dispatched before it; never from inside this call. Any thread.
	 * Prerequisites have run by then, since tasks run in the order in which they were dispatched.
	 */
	static FGraphEventRef CreateAndDispatchWhenReady(TUniqueFunction<void()> InFunction, TStatId InStatId = TStatId{},
		const FGraphEventArray* InPrerequisites = nullptr, ENamedThreads::Type InDesiredThread = ENamedThreads::GameThread);
};
