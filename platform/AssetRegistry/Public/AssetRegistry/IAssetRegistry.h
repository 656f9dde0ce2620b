#pragma once

// AssetRegistry: which assets there are, in files and in memory, without loading any.
//
// What lies in files is read from their headers alone. There is no background scan: each question first brings the list up to date with
// the content folders, where only files that have changed since are opened; one that can't be read is logged once. The system tells
// when nothing has changed; what it does not tell of (a link's target, other machines) is seen within a second. Left out:
// dependencies between packages, primary assets, saving the list itself.

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"

/** Game thread. Lists come in the order of the object paths, letters of both cases alike. */
class ASSETREGISTRY_API IAssetRegistry
{
public:
	/** Null before the module is loaded. */
	static IAssetRegistry* Get();
	static IAssetRegistry& GetChecked();
	virtual ~IAssetRegistry() = default;

	/** Appends the assets of that class. @return whether there are any */
	virtual bool GetAssetsByClass(
		FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const = 0;
	/** @param PackagePath a folder, as in "/Game/Doors" */
	virtual bool GetAssetsByPath(
		FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByPackageName(
		FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** An empty filter finds nothing. */
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** @return an invalid one when there is no such asset */
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false) const = 0;

	/** Appends the packages whose files refer to a package, softly, too. Each file is read. @return whether there are any */
	virtual bool GetReferencers(FName PackageName, TArray<FName>& OutReferencers) const = 0;

	/** Looks at the folders now. @param bForceRescan files that seem unchanged are read again, too */
	virtual void ScanPathsSynchronous(
		const TArray<FString>& InPaths, bool bForceRescan = false, bool bIgnoreDenyListScanFilters = false) = 0;
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;
	virtual bool IsLoadingAssets() const = 0;

	/** To be told of an asset that was made or changed in memory. */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;
	virtual void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) = 0;

	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetEvent, const FAssetData&);
	virtual FAssetEvent& OnAssetAdded() = 0;
	virtual FAssetEvent& OnAssetRemoved() = 0;
	virtual FAssetEvent& OnAssetUpdated() = 0;
	/** The asset and its old object path. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FAssetRenamedEvent, const FAssetData&, const FString&);
	virtual FAssetRenamedEvent& OnAssetRenamed() = 0;
};
