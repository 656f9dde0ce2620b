#pragma once

#include "Components/PrimitiveComponent.h"
#include "ShapeComponent.generated.h"

/** A primitive component of a simple shape, for collisions. */
UCLASS(abstract, hidecategories = (Object, LOD, Lighting, TextureStreaming, Activation, "Components|Activation"), editinlinenew,
	meta = (BlueprintSpawnableComponent), showcategories = (Mobility))
class ENGINE_API UShapeComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UShapeComponent();

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Shape)
	FColor ShapeColor = FColor(223, 149, 157, 255);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bDrawOnlyIfSelected : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Navigation)
	uint8 bDynamicObstacle : 1 = 0;
};
