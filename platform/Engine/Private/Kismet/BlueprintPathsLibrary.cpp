#include "Kismet/BlueprintPathsLibrary.h"

#include "Misc/Paths.h"

FString UBlueprintPathsLibrary::ProjectDir()
{
	return FPaths::ProjectDir();
}

FString UBlueprintPathsLibrary::ProjectContentDir()
{
	return FPaths::ProjectContentDir();
}

FString UBlueprintPathsLibrary::ProjectPluginsDir()
{
	return FPaths::ProjectPluginsDir();
}

FString UBlueprintPathsLibrary::ProjectConfigDir()
{
	return FPaths::ProjectConfigDir();
}

FString UBlueprintPathsLibrary::ProjectSavedDir()
{
	return FPaths::ProjectSavedDir();
}

FString UBlueprintPathsLibrary::ProjectLogDir()
{
	return FPaths::ProjectLogDir();
}

FString UBlueprintPathsLibrary::GetProjectFilePath()
{
	return FPaths::GetProjectFilePath();
}

FString UBlueprintPathsLibrary::EngineDir()
{
	return FPaths::EngineDir();
}

FString UBlueprintPathsLibrary::EngineContentDir()
{
	return FPaths::EngineContentDir();
}

bool UBlueprintPathsLibrary::FileExists(const FString& InPath)
{
	return FPaths::FileExists(InPath);
}

bool UBlueprintPathsLibrary::DirectoryExists(const FString& InPath)
{
	return FPaths::DirectoryExists(InPath);
}

FString UBlueprintPathsLibrary::GetExtension(const FString& InPath, bool bIncludeDot)
{
	return FPaths::GetExtension(InPath, bIncludeDot);
}

FString UBlueprintPathsLibrary::GetCleanFilename(const FString& InPath)
{
	return FPaths::GetCleanFilename(InPath);
}

FString UBlueprintPathsLibrary::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	return FPaths::GetBaseFilename(InPath, bRemovePath);
}

FString UBlueprintPathsLibrary::GetPath(const FString& InPath)
{
	return FPaths::GetPath(InPath);
}

FString UBlueprintPathsLibrary::ConvertRelativePathToFull(const FString& InPath, const FString& InBasePath)
{
	return InBasePath.IsEmpty() ? FPaths::ConvertRelativePathToFull(InPath) : FPaths::ConvertRelativePathToFull(InBasePath, InPath);
}

FString UBlueprintPathsLibrary::Combine(const TArray<FString>& InPaths)
{
	FString Result = InPaths.IsEmpty() ? FString() : InPaths[0];
	for (int32 Index = 1; Index < InPaths.Num(); ++Index)
	{
		Result = Result / InPaths[Index];
	}
	return Result;
}
