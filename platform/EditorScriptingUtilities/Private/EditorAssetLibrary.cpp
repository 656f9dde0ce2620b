#include "EditorAssetLibrary.h"

#include "AssetPaths.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/Blueprint.h"
#include "Engine/World.h"
#include "HAL/FileManager.h"
#include "IAssetTools.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ObjectTools.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Null, with a reason, for what is no asset. */
UPackage* GetAssetPackage(const UObject* Asset, FString& OutError)
{
	if (!IsValid(Asset) || !Asset->IsAsset())
	{
		OutError = FString::Printf(TEXT("'%s' is no asset"), *GetPathNameSafe(Asset));
		return nullptr;
	}
	return Asset->GetPackage();
}

TArray<FAssetData> GetAssetsIn(const FString& Directory, bool bRecursive)
{
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssetsByPath(FName(Directory), Assets, bRecursive);
	return Assets;
}

/** The folders below one that there are on disk. */
void AddFolders(const FString& Directory, bool bRecursive, TArray<FString>& OutPaths)
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(AssetPaths::GetFolderOnDisk(Directory) / TEXT("*")), false, true);
	for (const FString& Name : Names)
	{
		const FString Path = Directory / Name;
		OutPaths.Add(Path + TEXT("/"));
		if (bRecursive)
		{
			AddFolders(Path, true, OutPaths);
		}
	}
}
}

UObject* UEditorAssetLibrary::LoadAsset(const FString& AssetPath)
{
	FString Error;
	const FAssetData Asset = AssetPaths::FindAsset(AssetPath, Error);
	UObject* const Object = Asset.IsValid() ? Asset.GetAsset() : nullptr;
	if (!Object)
	{
		AssetPaths::LogFailure(TEXT("LoadAsset"), Asset.IsValid() ? FString::Printf(TEXT("'%s' can't be loaded"), *AssetPath) : Error);
	}
	return Object;
}

UClass* UEditorAssetLibrary::LoadBlueprintClass(const FString& AssetPath)
{
	const UBlueprint* const Blueprint = Cast<UBlueprint>(LoadAsset(AssetPath));
	if (!Blueprint)
	{
		AssetPaths::LogFailure(TEXT("LoadBlueprintClass"), FString::Printf(TEXT("'%s' is no Blueprint"), *AssetPath));
		return nullptr;
	}
	return Blueprint->GeneratedClass;
}

FString UEditorAssetLibrary::GetPathNameForLoadedAsset(UObject* LoadedAsset)
{
	FString Error;
	if (!GetAssetPackage(LoadedAsset, Error))
	{
		AssetPaths::LogFailure(TEXT("GetPathNameForLoadedAsset"), Error);
		return FString();
	}
	return LoadedAsset->GetPathName();
}

bool UEditorAssetLibrary::DoesAssetExist(const FString& AssetPath)
{
	FString Error;
	return AssetPaths::FindAsset(AssetPath, Error).IsValid();
}

bool UEditorAssetLibrary::SaveAsset(const FString& AssetToSave, bool bOnlyIfIsDirty)
{
	UObject* const Asset = LoadAsset(AssetToSave);
	return Asset && SaveLoadedAsset(Asset, bOnlyIfIsDirty);
}

bool UEditorAssetLibrary::SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty)
{
	FString Error;
	UPackage* const Package = GetAssetPackage(AssetToSave, Error);
	if (!Package)
	{
		AssetPaths::LogFailure(TEXT("SaveLoadedAsset"), Error);
		return false;
	}
	if (bOnlyIfIsDirty && !Package->IsDirty())
	{
		return true;
	}
	const bool bMap = AssetToSave->IsA(UWorld::StaticClass());
	const FString& Extension = bMap ? FPackageName::GetMapPackageExtension() : FPackageName::GetAssetPackageExtension();
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	const FString Filename = FPackageName::LongPackageNameToFilename(Package->GetName(), Extension);
	return UPackage::SavePackage(Package, AssetToSave, *Filename, Args);
}

bool UEditorAssetLibrary::SaveDirectory(const FString& DirectoryPath, bool bOnlyIfIsDirty, bool bRecursive)
{
	bool bAll = true;
	for (const FAssetData& Asset : GetAssetsIn(AssetPaths::GetFolder(DirectoryPath), bRecursive))
	{
		if (!bOnlyIfIsDirty || Asset.IsAssetLoaded())
		{
			bAll &= SaveLoadedAsset(Asset.GetAsset(), bOnlyIfIsDirty);
		}
	}
	return bAll;
}

bool UEditorAssetLibrary::RenameAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath)
{
	UObject* const Asset = LoadAsset(SourceAssetPath);
	return Asset && RenameLoadedAsset(Asset, DestinationAssetPath);
}

bool UEditorAssetLibrary::RenameLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath)
{
	const FString Destination = FPackageName::ObjectPathToPackageName(FPackageName::ExportTextPathToObjectPath(DestinationAssetPath));
	FString Error;
	if (!GetAssetPackage(SourceAsset, Error))
	{
		AssetPaths::LogFailure(TEXT("RenameLoadedAsset"), Error);
		return false;
	}
	return IAssetTools::Get().RenameAssets(
		{ FAssetRenameData(SourceAsset, FPackageName::GetLongPackagePath(Destination), FPackageName::GetShortName(Destination)) });
}

bool UEditorAssetLibrary::DeleteAsset(const FString& AssetPathToDelete)
{
	UObject* const Asset = LoadAsset(AssetPathToDelete);
	return Asset && DeleteLoadedAsset(Asset);
}

bool UEditorAssetLibrary::DeleteLoadedAsset(UObject* AssetToDelete)
{
	FString Error;
	if (!GetAssetPackage(AssetToDelete, Error))
	{
		AssetPaths::LogFailure(TEXT("DeleteLoadedAsset"), Error);
		return false;
	}
	return ObjectTools::DeleteObjects({ AssetToDelete }, false) == 1;
}

TArray<FString> UEditorAssetLibrary::ListAssets(const FString& DirectoryPath, bool bRecursive, bool bIncludeFolder)
{
	FString Error;
	const FAssetData Asset = DirectoryPath.EndsWith(TEXT("/")) ? FAssetData() : AssetPaths::FindAsset(DirectoryPath, Error);
	if (Asset.IsValid())
	{
		return { Asset.GetObjectPathString() };
	}
	TArray<FString> Paths;
	const FString Folder = AssetPaths::GetFolder(DirectoryPath);
	for (const FAssetData& Each : GetAssetsIn(Folder, bRecursive))
	{
		Paths.Add(Each.GetObjectPathString());
	}
	if (bIncludeFolder)
	{
		AddFolders(Folder, bRecursive, Paths);
	}
	return Paths;
}

bool UEditorAssetLibrary::DoesDirectoryExist(const FString& DirectoryPath)
{
	const FString Folder = AssetPaths::GetFolderOnDisk(AssetPaths::GetFolder(DirectoryPath));
	return (!Folder.IsEmpty() && FPaths::DirectoryExists(Folder)) || DoesDirectoryHaveAssets(DirectoryPath);
}

bool UEditorAssetLibrary::DoesDirectoryHaveAssets(const FString& DirectoryPath, bool bRecursive)
{
	return !GetAssetsIn(AssetPaths::GetFolder(DirectoryPath), bRecursive).IsEmpty();
}

bool UEditorAssetLibrary::MakeDirectory(const FString& DirectoryPath)
{
	const FString Folder = AssetPaths::GetFolderOnDisk(AssetPaths::GetFolder(DirectoryPath));
	const bool bMade = !Folder.IsEmpty() && IFileManager::Get().MakeDirectory(*Folder, true);
	if (!bMade)
	{
		AssetPaths::LogFailure(TEXT("MakeDirectory"), FString::Printf(TEXT("'%s' can't be made"), *DirectoryPath));
	}
	return bMade;
}

IMPLEMENT_MODULE(FDefaultModuleImpl, EditorScriptingUtilities)
