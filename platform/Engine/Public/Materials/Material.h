#pragma once

#include "Materials/MaterialInterface.h"
#include "Material.generated.h"

/** A material of its own. Its graph of expressions is not there. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UMaterial : public UMaterialInterface
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Material)
	uint8 TwoSided : 1 = 0;

	UPROPERTY(EditAnywhere, Category = Material)
	float OpacityMaskClipValue = 0.3333f;
};
