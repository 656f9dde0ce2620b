#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleManager.h"

class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	virtual IAssetRegistry& Get() const { return IAssetRegistry::GetChecked(); }
	static IAssetRegistry& GetRegistry() { return IAssetRegistry::GetChecked(); }
	static void AssetCreated(UObject* NewAsset) { GetRegistry().AssetCreated(NewAsset); }
	static void AssetDeleted(UObject* DeletedAsset) { GetRegistry().AssetDeleted(DeletedAsset); }
	static void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
	{
		GetRegistry().AssetRenamed(RenamedAsset, OldObjectPath);
	}

private:
	TUniquePtr<IAssetRegistry> Registry;
};
