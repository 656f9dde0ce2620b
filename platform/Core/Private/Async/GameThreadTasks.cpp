#include "Async/GameThreadTasks.h"

#include "Async/Async.h"
#include "CoreHost/MainLoop.h"
#include "Misc/ScopeLock.h"

FGameThreadTasks& FGameThreadTasks::Get()
{
	static FGameThreadTasks* const Tasks = new FGameThreadTasks;
	return *Tasks;
}

FGraphEventRef FGameThreadTasks::Add(TUniqueFunction<void()> Function)
{
	FGraphEventRef Event = MakeShared<FGraphEvent>();
	{
		FScopeLock Guard(&Lock);
		Waiting.push_back({ MoveTemp(Function), Event });
	}
	FMainLoop::Wake();
	return Event;
}

void FGameThreadTasks::Run()
{
	std::vector<FTask> Tasks;
	{
		FScopeLock Guard(&Lock);
		Tasks.swap(Waiting);
	}
	for (const FTask& Task : Tasks)
	{
		Task.Function();
		Task.Event->bComplete = true;
	}
}

FGraphEventRef FFunctionGraphTask::CreateAndDispatchWhenReady(
	TUniqueFunction<void()> InFunction, TStatId, const FGraphEventArray*, ENamedThreads::Type)
{
	return FGameThreadTasks::Get().Add(MoveTemp(InFunction));
}

void AsyncTask(ENamedThreads::Type, TUniqueFunction<void()> Function)
{
	FGameThreadTasks::Get().Add(MoveTemp(Function));
}
