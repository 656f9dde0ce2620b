#include "CompilationSteps.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "FileHelpers.h"
#include "HAL/PlatformMisc.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/SavePackage.h"

namespace
{
FString GetFileName(UPackage* Package)
{
	const FString& Extension =
		UWorld::FindWorldInPackage(Package) ? FPackageName::GetMapPackageExtension() : FPackageName::GetAssetPackageExtension();
	return FPackageName::LongPackageNameToFilename(Package->GetName(), Extension);
}

/** Each followed by a line end. */
FString KeepErrorsAndWarnings(const FString& LogFile)
{
	FString Text;
	FFileHelper::LoadFileToString(Text, *LogFile);
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	FString Kept;
	for (const FString& Line : Lines)
	{
		if (Line.Contains(TEXT("error:")) || Line.Contains(TEXT("warning:")))
		{
			Kept += Line + TEXT("\n");
		}
	}
	return Kept;
}
}

void SaveDirtyPackages()
{
	const auto IgnoreNone = [](UPackage*) { return false; };
	TArray<UPackage*> Packages;
	FEditorFileUtils::GetDirtyContentPackages(Packages, IgnoreNone);
	FEditorFileUtils::GetDirtyWorldPackages(Packages, IgnoreNone);
	for (UPackage* const Package : Packages)
	{
		if (Package)
		{
			FSavePackageArgs Args;
			Args.TopLevelFlags = RF_Standalone;
			Args.SaveFlags = SAVE_NoError;
			UPackage::SavePackage(Package, nullptr, *GetFileName(Package), Args);
		}
	}
}

void RescanAfterCompilation()
{
	if (GEngine)
	{
		GEngine->DeferredCommands.Add(TEXT("RescanAllBlueprintClasses"));
	}
	FAssetRegistryModule& AssetRegistry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	AssetRegistry.Get().ScanPathsSynchronous({ FPaths::ProjectContentDir() }, false, false);
}

FString ReadBuildLog()
{
	const FString EngineLog = FPaths::Combine(FPaths::EngineDir(), TEXT("Programs"), TEXT("UnrealBuildTool"), TEXT("Log.txt"));
	if (FPaths::FileExists(EngineLog))
	{
		return KeepErrorsAndWarnings(EngineLog);
	}
	const FString AppData = FPlatformMisc::GetEnvironmentVariable(TEXT("LOCALAPPDATA"));
	const FString UserLog = FPaths::Combine(AppData, TEXT("UnrealBuildTool"), TEXT("Log.txt"));
	return !AppData.IsEmpty() && FPaths::FileExists(UserLog) ? KeepErrorsAndWarnings(UserLog) : FString();
}
