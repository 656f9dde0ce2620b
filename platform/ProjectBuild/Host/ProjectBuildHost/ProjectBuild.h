#pragma once

// ProjectBuild: the build of the open project's C++ modules that LiveCoding and HotReload share, and the change to what was built.
//
// Every Source/**/<Module>.Build.cs is a module. The header tool and the machine's compiler run through ninja, below the project's
// Intermediate/Build, with the flags and include paths that this editor itself was built with. Each build that changes something makes
// libraries with new names in Binaries/Linux, since those that are loaded can't be replaced; what the project's next start loads is a
// link to the newest. CMAKE_CXX_COMPILER_LAUNCHER in the environment is put before the compiler.
//
// Left out: sources of plug-ins, Target.cs files, everything in a Build.cs but the dependencies.

#include "Containers/UnrealString.h"
#include "Templates/Function.h"

enum class EProjectBuildResult : uint8
{
	/** The new modules are in the place of the old ones. */
	Succeeded,
	/** What is loaded is what the sources say; the output says so only for a project without C++ modules. */
	NoChanges,
	/** The sources have errors, or what was made of them can't take the old modules' place. Those stay. */
	Failed,
	/** Somebody interrupted the build. */
	Cancelled,
	/** There is no compiler, no ninja or no project. */
	NotStarted
};

/** One build at a time. Game thread. */
struct PROJECTBUILD_API FProjectBuild
{
	using FFinished = TFunction<void(EProjectBuildResult Result, const FString& Output)>;

	/** Whether a build is at work, in the background or further up the stack. */
	static bool IsRunning();
	/** Builds and changes over; returns when all is done. None may be running. */
	static EProjectBuildResult Run();
	/** Builds in a thread, changes over in the main loop, and then calls back, with all lines of the build. None may be running. */
	static void RunInBackground(FFinished OnFinished);
	/** Interrupts a build in the background, if there is one, and waits for its end. It calls nobody back. */
	static void Stop();
	/** The file that has the lines of the last build. */
	static FString GetLogFile();
};
