#pragma once

#include "AssetFiles.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FAssetRegistry final : public IAssetRegistry
{
public:
	bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const override;
	bool GetAssetsByPath(
		FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override;
	bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const override;
	bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const override;
	bool GetReferencers(FName PackageName, TArray<FName>& OutReferencers) const override;
	void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan, bool bIgnoreDenyListScanFilters) override;
	void SearchAllAssets(bool bSynchronousSearch) override;
	/** Every question waits for the scan. */
	bool IsLoadingAssets() const override { return false; }
	void AssetCreated(UObject* NewAsset) override;
	void AssetDeleted(UObject* DeletedAsset) override;
	void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) override;
	FAssetEvent& OnAssetAdded() override { return AddedEvent; }
	FAssetEvent& OnAssetRemoved() override { return RemovedEvent; }
	FAssetEvent& OnAssetUpdated() override { return UpdatedEvent; }
	FAssetRenamedEvent& OnAssetRenamed() override { return RenamedEvent; }

private:
	void Update(bool bForceRescan = false) const;
	/** All assets that Fits says yes to; what is in memory stands for what is in its file. */
	bool Gather(TArray<FAssetData>& OutAssetData, bool bOnlyOnDisk, TFunctionRef<bool(const FAssetData&)> Fits) const;

	mutable FAssetFiles Files;
	/** Assets made in memory, whether they have a file by now or not. */
	mutable TArray<TWeakObjectPtr<UObject>> Created;
	mutable FAssetEvent AddedEvent;
	mutable FAssetEvent RemovedEvent;
	mutable FAssetEvent UpdatedEvent;
	FAssetRenamedEvent RenamedEvent;
};
