#include "CoreHost/Project.h"

#include "HAL/NativePath.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "Misc/App.h"
#include "Misc/Paths.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace
{
struct FProject
{
	FString File;
	FString Directory = FPlatformProcess::BaseDir();
	FString Name;
	FString EngineDirectory;
};

FProject& Project()
{
	static FProject Instance;
	return Instance;
}

FString DefaultEngineDirectory()
{
	const FString StateHome = FPlatformMisc::GetEnvironmentVariable(TEXT("XDG_STATE_HOME"));
	const FString Home = FPlatformMisc::GetEnvironmentVariable(TEXT("HOME"));
	const FString State = !StateHome.IsEmpty() ? StateHome : FPaths::Combine(Home.IsEmpty() ? TEXT("/tmp") : *Home, TEXT(".local/state"));
	return FPaths::Combine(State, TEXT("kestrin/Engine"));
}

/** Whether the folder is this process's alone from now on; true for one that can't be made, in which nothing can be written anyway. */
bool Occupy(const FString& Directory)
{
	std::error_code Ignored;
	std::filesystem::create_directories(NativePath(*Directory), Ignored);
	const int Lock = ::open(NativePath(*(Directory / TEXT(".lock"))).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
	if (Lock < 0 || ::flock(Lock, LOCK_EX | LOCK_NB) == 0)
	{
		return true; // the lock goes with the process
	}
	::close(Lock);
	return false;
}

/** The first of "Engine", "Engine-2" and so on that no other editor has. */
FString ChooseEngineDirectory()
{
	const FString First = DefaultEngineDirectory();
	FString Directory = First;
	for (int32 Number = 2; !Occupy(Directory); ++Number)
	{
		Directory = FString::Printf(TEXT("%s-%d"), *First, Number);
	}
	return WithEndingSlash(Directory);
}
}

void FHostProject::Set(const FString& File)
{
	FProject& Open = Project();
	Open.File = File.IsEmpty() ? FString() : FPaths::ConvertRelativePathToFull(File);
	Open.Directory = File.IsEmpty() ? FString(FPlatformProcess::BaseDir()) : WithEndingSlash(FPaths::GetPath(Open.File));
	Open.Name = FPaths::GetBaseFilename(Open.File);
}

void FHostProject::SetEngineDir(const FString& Directory)
{
	Project().EngineDirectory = WithEndingSlash(FPaths::ConvertRelativePathToFull(Directory));
}

FString FPaths::ProjectDir()
{
	return Project().Directory;
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectLogDir()
{
	return ProjectDir() + TEXT("Saved/Logs/");
}

FString FPaths::GetProjectFilePath()
{
	return Project().File;
}

FString FPaths::EngineDir()
{
	FString& Directory = Project().EngineDirectory;
	if (Directory.IsEmpty())
	{
		Directory = ChooseEngineDirectory();
	}
	return Directory;
}

const TCHAR* FApp::GetProjectName()
{
	return *Project().Name;
}
