#pragma once

#include "IAssetTools.h"
#include "AssetToolsImpl.generated.h"

/** Its default object does the work: it has no state. */
UCLASS(Transient)
class UAssetToolsImpl : public UObject, public IAssetTools
{
	GENERATED_BODY()

public:
	UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext) override;
	bool RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames) override;
};
