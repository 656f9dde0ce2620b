#include "AssetPaths.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorScripting, Log, All);

namespace AssetPaths
{
FAssetData FindAsset(const FString& Path, FString& OutError)
{
	FString ObjectPath = FPackageName::ExportTextPathToObjectPath(Path);
	const FString PackageName = FPackageName::ObjectPathToPackageName(ObjectPath);
	FText Reason;
	if (!FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
	{
		OutError = FString::Printf(TEXT("'%s' is no path of an asset: %s"), *Path, *Reason.ToString());
		return FAssetData();
	}
	if (ObjectPath == PackageName)
	{
		ObjectPath += TEXT(".") + FPackageName::GetShortName(PackageName);
	}
	const FAssetData Asset = IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(ObjectPath));
	if (!Asset.IsValid())
	{
		OutError = FString::Printf(TEXT("there is no asset '%s'"), *ObjectPath);
	}
	return Asset;
}

FString GetFolder(const FString& Path)
{
	FString Folder = Path;
	Folder.RemoveFromEnd(TEXT("/"));
	return Folder;
}

FString GetFolderOnDisk(const FString& Folder)
{
	// A folder's name is as a package's, but for the roots.
	if (Folder == TEXT("/Game") || Folder == TEXT("/Engine"))
	{
		return (Folder == TEXT("/Game") ? FPaths::ProjectContentDir() : FPaths::EngineContentDir()).LeftChop(1);
	}
	FString OnDisk;
	const bool bValid = FPackageName::IsValidLongPackageName(Folder);
	return bValid && FPackageName::TryConvertLongPackageNameToFilename(Folder, OnDisk) ? OnDisk : FString();
}

void LogFailure(const TCHAR* Function, const FString& Reason)
{
	UE_LOG(LogEditorScripting, Error, TEXT("%s. %s."), Function, *Reason);
}
}
