#include "ProjectBuildHost/ProjectBuild.h"

#include "Async/Async.h"
#include "BuildRun.h"
#include "ModuleReload.h"
#include "Misc/AssertionMacros.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"
#include "Templates/UniquePtr.h"

#include <thread>

namespace
{
/** A build from its start to the moment when its modules are in place. */
struct FActiveBuild
{
	FBuildLog Log;
	FBuildRun Run{ FPaths::GetProjectFilePath(), Log };
	FProjectBuild::FFinished OnFinished;
	std::thread Thread;
	/** Tells builds apart. */
	int32 Serial = 0;

	~FActiveBuild()
	{
		if (Thread.joinable())
		{
			Run.Interrupt();
			Thread.join();
		}
	}
};

TUniquePtr<FActiveBuild> Active;

/** The game thread's part. */
EProjectBuildResult ChangeOver(FActiveBuild& Build)
{
	// What was built may not be loaded yet, if the project has come to name it only now.
	const EProjectBuildResult Result = Build.Run.GetResult();
	if (Result != EProjectBuildResult::Succeeded && (Result != EProjectBuildResult::NoChanges || Build.Run.IsLoaded()))
	{
		return Result;
	}
	const bool bReloaded = ReloadModules(Build.Run.GetModules(), Build.Log);
	Build.Run.Conclude(bReloaded);
	return bReloaded ? EProjectBuildResult::Succeeded : EProjectBuildResult::Failed;
}

void FinishInBackground()
{
	Active->Thread.join();
	// The devices of this thread have not seen all lines of the other one yet.
	GLog->FlushThreadedLogs();
	const EProjectBuildResult Result = ChangeOver(*Active);
	// Whoever hears of it may start the next one.
	const TUniquePtr<FActiveBuild> Build = MoveTemp(Active);
	Build->OnFinished(Result, Build->Log.GetText());
}
}

bool FProjectBuild::IsRunning()
{
	return Active.IsValid();
}

EProjectBuildResult FProjectBuild::Run()
{
	check(!IsRunning());
	Active = MakeUnique<FActiveBuild>();
	Active->Run.Run();
	const EProjectBuildResult Result = ChangeOver(*Active);
	Active.Reset();
	return Result;
}

void FProjectBuild::RunInBackground(FFinished OnFinished)
{
	check(!IsRunning());
	Active = MakeUnique<FActiveBuild>();
	Active->OnFinished = MoveTemp(OnFinished);
	static int32 LastSerial = 0;
	Active->Serial = ++LastSerial;
	Active->Thread = std::thread(
		[Build = Active.Get()]
		{
		Build->Run.Run();
		AsyncTask(ENamedThreads::GameThread,
			[Serial = Build->Serial]
			{
			// Stop may have come first.
			if (Active && Active->Serial == Serial)
			{
				FinishInBackground();
			}
		});
	});
}

void FProjectBuild::Stop()
{
	if (Active && Active->Thread.joinable())
	{
		Active.Reset();
	}
}
