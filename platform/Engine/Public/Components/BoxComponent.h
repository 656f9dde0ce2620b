#pragma once

#include "Components/ShapeComponent.h"
#include "BoxComponent.generated.h"

UCLASS(ClassGroup = Collision, editinlinenew, hidecategories = (Object, LOD, Lighting, TextureStreaming),
	meta = (DisplayName = "Box Collision", BlueprintSpawnableComponent))
class ENGINE_API UBoxComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** In centimetres, from the centre; scaled with the component. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	void SetBoxExtent(FVector InBoxExtent, bool bUpdateOverlaps = true) { BoxExtent = InBoxExtent; }
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	FVector GetUnscaledBoxExtent() const { return BoxExtent; }

protected:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Shape)
	FVector BoxExtent = FVector(32.0, 32.0, 32.0);
};
