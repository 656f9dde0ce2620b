#include "CoreHost/Project.h"

#include "HAL/NativePath.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "Misc/App.h"
#include "Misc/Paths.h"

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
	return FPaths::Combine(State, TEXT("kestrin/Engine/"));
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
		Directory = DefaultEngineDirectory();
	}
	return Directory;
}

const TCHAR* FApp::GetProjectName()
{
	return *Project().Name;
}
