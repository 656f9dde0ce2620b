#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/UObjectGlobals.h"
#include "DataAsset.generated.h"

/** An asset that is nothing but properties. */
UCLASS(abstract, MinimalAPI, meta = (LoadBehavior = "LazyOnDemand"))
class ENGINE_API UDataAsset : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(AssetRegistrySearchable)
	TSubclassOf<UDataAsset> NativeClass;

	void PostInitProperties() override;
};

/** A data asset that Blueprints can derive from. */
UCLASS(abstract, MinimalAPI, Blueprintable)
class ENGINE_API UPrimaryDataAsset : public UDataAsset
{
	GENERATED_BODY()
};
