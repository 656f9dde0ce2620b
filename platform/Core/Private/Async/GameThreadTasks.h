#pragma once

#include "Async/TaskGraphInterfaces.h"
#include "HAL/CriticalSection.h"

#include <vector>

/** The functions that wait for the main loop. */
class FGameThreadTasks
{
public:
	static FGameThreadTasks& Get();

	/** Any thread. */
	FGraphEventRef Add(TUniqueFunction<void()> Function);
	/** Runs those that wait now; what they add waits for the next call. Game thread. */
	void Run();

private:
	struct FTask
	{
		TUniqueFunction<void()> Function;
		FGraphEventRef Event;
	};

	FCriticalSection Lock;
	std::vector<FTask> Waiting;
};
