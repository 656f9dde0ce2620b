#pragma once

#include "Components/PrimitiveComponent.h"
#include "MeshComponent.generated.h"

class UMaterialInterface;

/** A primitive component that shows triangles with materials. */
UCLASS(abstract, ShowCategories = (VirtualTexture))
class ENGINE_API UMeshComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UMeshComponent();

	/** In place of the asset's own materials, by its slots. */
	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = Rendering)
	TArray<TObjectPtr<UMaterialInterface>> OverrideMaterials;

	/** Null for a slot that is not overridden. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInterface* GetMaterial(int32 ElementIndex) const;
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetMaterial(int32 ElementIndex, UMaterialInterface* Material);
};
