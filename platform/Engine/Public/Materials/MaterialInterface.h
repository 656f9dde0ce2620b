#pragma once

#include "UObject/UObjectGlobals.h"
#include "MaterialInterface.generated.h"

/** What a surface is painted with. */
UCLASS(abstract, BlueprintType, HideCategories = (Thumbnail))
class ENGINE_API UMaterialInterface : public UObject
{
	GENERATED_BODY()
};
