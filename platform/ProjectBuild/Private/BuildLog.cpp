#include "BuildLog.h"

#include "HAL/FileManager.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"
#include "ProjectBuildHost/ProjectBuild.h"

DEFINE_LOG_CATEGORY_STATIC(LogCompile, Log, All);

FString FProjectBuild::GetLogFile()
{
	return FPaths::Combine(FPaths::EngineDir(), TEXT("Programs/UnrealBuildTool/Log.txt"));
}

FBuildLog::FBuildLog()
{
	const FString Path = FProjectBuild::GetLogFile();
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Path), true);
	File.open(TCHAR_TO_UTF8(*Path), std::ios::binary);
}

void FBuildLog::Add(const FString& Line)
{
	Text += Line + TEXT("\n");
	File << TCHAR_TO_UTF8(*Line) << '\n' << std::flush;
	if (Line.Contains(TEXT("error:")))
	{
		UE_LOG(LogCompile, Error, TEXT("%s"), *Line);
	}
	else if (Line.Contains(TEXT("warning:")))
	{
		UE_LOG(LogCompile, Warning, TEXT("%s"), *Line);
	}
	else
	{
		UE_LOG(LogCompile, Display, TEXT("%s"), *Line);
	}
}
