#pragma once

#include "BuildFile.h"
#include "BuildLog.h"
#include "ChildProcess.h"
#include "ModuleReload.h"
#include "ProjectBuildHost/ProjectBuild.h"
#include "ProjectDescriptor.h"
#include "Templates/UniquePtr.h"

/** The part of a build that needs no game thread: from the sources to new libraries. */
class FBuildRun
{
public:
	FBuildRun(const FString& InProjectFile, FBuildLog& InLog)
		: ProjectFile(InProjectFile)
		, Log(InLog)
	{
	}

	/** Any thread. */
	void Run();
	/** Ends a run that is going on; any thread. */
	void Interrupt() { Ninja.Interrupt(); }

	/** After the run: Succeeded when there are new libraries, which are to be loaded. */
	EProjectBuildResult GetResult() const { return Result; }
	/** Whether all modules are loaded that are to be. Game thread. */
	bool IsLoaded() const;
	const TArray<FBuiltModule>& GetModules() const { return Modules; }
	/** After the libraries were loaded, or were not: keeps those that are in use. */
	void Conclude(bool bLoaded) const;

private:
	EProjectBuildResult Build();
	EProjectBuildResult Fail(const FString& Error, EProjectBuildResult Kind = EProjectBuildResult::Failed);
	/** Notes what is doubtful about the sources. */
	void Warn();
	/** Nothing was built here yet, but what the project came with is newer than all of its sources. */
	bool IsStartLibraryCurrent() const;
	/** Whether the libraries of that number are what the sources say. */
	bool IsCurrent(int32 Number);
	EProjectBuildResult RunNinja();
	void NoteModules(int32 InNumber);

	FString ProjectFile;
	FBuildLog& Log;
	FChildProcess Ninja;
	FProjectDescriptor Project;
	FProjectSources Sources;
	FToolchain Toolchain;
	TUniquePtr<FBuildFile> File;
	int32 Number = 0;
	TArray<FBuiltModule> Modules;
	EProjectBuildResult Result = EProjectBuildResult::NotStarted;
};
