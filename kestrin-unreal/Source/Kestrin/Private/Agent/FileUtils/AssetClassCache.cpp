#include "Agent/FileUtils.h"

#include "HAL/PlatformFileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

// An asset's class is known only once the asset is loaded; a text file keeps what was found, so that each is loaded at most once.

namespace
{
const TCHAR* const ContentRoot = TEXT("/Game/");
const TCHAR* const AssetExtension = TEXT(".uasset");

FString GetAssetFile(const FString& AssetPath)
{
	return (AssetPath + AssetExtension).Replace(ContentRoot, *FPaths::ProjectContentDir(), ESearchCase::CaseSensitive);
}

FString GetAssetPath(const FString& DirectoryPath, const FString& FileName)
{
	return FPaths::Combine(DirectoryPath, FileName)
		.Replace(*FPaths::ProjectContentDir(), ContentRoot, ESearchCase::CaseSensitive)
		.Replace(AssetExtension, TEXT(""), ESearchCase::IgnoreCase);
}

/** The C++ class that the asset's class comes from; none when the asset does not load. */
FName LoadAssetClass(const FString& AssetPath)
{
	constexpr uint32 LoadFlags = LOAD_NoWarn | LOAD_NoVerify | LOAD_Quiet | LOAD_FindIfFail | LOAD_DisableCompileOnLoad;
	const UObject* const Asset = StaticLoadObject(UObject::StaticClass(), nullptr, *AssetPath, nullptr, LoadFlags, nullptr, true, nullptr);
	if (!Asset)
	{
		return NAME_None;
	}
	const UClass* Class = Asset->GetClass();
	while (Class && (Class->HasAnyClassFlags(CLASS_CompiledFromBlueprint) || !Class->HasAnyClassFlags(CLASS_Native)))
	{
		Class = Class->GetSuperClass();
	}
	return (Class ? Class : Asset->GetClass())->GetFName();
}
}

TMap<FString, FName> FFileUtils::AssetClassCache;
FCriticalSection FFileUtils::AssetClassCacheLock;
FString FFileUtils::AssetClassSaveDirectory;

FString FFileUtils::GetAssetClassCacheSaveDirectory()
{
	AssetClassSaveDirectory = FPaths::Combine(FPaths::ProjectPluginsDir(), TEXT("kestrin-unreal"), TEXT("Saved"));
	return FPaths::Combine(AssetClassSaveDirectory, TEXT("AssetClassCache.log"));
}

void FFileUtils::LoadAssetClassCache()
{
	if (!AssetClassCache.IsEmpty())
	{
		return;
	}
	const FScopeLock Lock(&AssetClassCacheLock);
	const FString Path = GetAssetClassCacheSaveDirectory();
	TArray<FString> Lines;
	if (!FPaths::FileExists(Path) || !FFileHelper::LoadFileToStringArray(Lines, *Path))
	{
		return;
	}
	for (const FString& Line : Lines)
	{
		FString AssetPath;
		FString ClassName;
		const bool bWhole = Line.Split(TEXT("="), &AssetPath, &ClassName) && !AssetPath.IsEmpty() && !ClassName.IsEmpty();
		if (bWhole && FPaths::FileExists(GetAssetFile(AssetPath)))
		{
			AssetClassCache.Add(AssetPath, FName(*ClassName));
		}
	}
}

void FFileUtils::SaveAssetClassCache()
{
	const FScopeLock Lock(&AssetClassCacheLock);
	if (AssetClassCache.IsEmpty())
	{
		return;
	}
	const FString Path = GetAssetClassCacheSaveDirectory();
	const FString Directory = FPaths::GetPath(Path);
	IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
	if (!Files.DirectoryExists(*Directory) && !Files.CreateDirectoryTree(*Directory))
	{
		return;
	}
	TArray<FString> Lines;
	for (const TPair<FString, FName>& Entry : AssetClassCache)
	{
		Lines.Add(FString::Printf(TEXT("%s=%s"), *Entry.Key, *Entry.Value.ToString()));
	}
	// Without the file the next run loads the assets again, nothing worse.
	FFileHelper::SaveStringArrayToFile(Lines, *Path, FFileHelper::EEncodingOptions::AutoDetect);
}

void FFileUtils::ClearAssetClassCache()
{
	const FScopeLock Lock(&AssetClassCacheLock);
	AssetClassCache.Empty();
}

bool FFileUtils::FileMatchesAssetClassPatterns(
	const FString& DirectoryPath, const FString& FileName, const TSet<FName>& AssetClassPatterns, FName& OutClassName)
{
	if (AssetClassPatterns.IsEmpty() || FPaths::GetExtension(FileName) != TEXT("uasset"))
	{
		return true;
	}
	const FString AssetPath = GetAssetPath(DirectoryPath, FileName);
	FName ClassName;
	bool bKnown = false;
	{
		const FScopeLock Lock(&AssetClassCacheLock);
		if (const FName* const Cached = AssetClassCache.Find(AssetPath))
		{
			ClassName = *Cached;
			bKnown = true;
		}
	}
	if (!bKnown)
	{
		// Loading may take long and may come back here: the lock is not held.
		ClassName = LoadAssetClass(AssetPath);
		const FScopeLock Lock(&AssetClassCacheLock);
		AssetClassCache.Add(AssetPath, ClassName);
	}
	if (ClassName.IsNone() || !AssetClassPatterns.Contains(ClassName))
	{
		return false;
	}
	OutClassName = ClassName;
	return true;
}
