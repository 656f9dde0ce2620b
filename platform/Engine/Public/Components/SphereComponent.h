#pragma once

#include "Components/ShapeComponent.h"
#include "SphereComponent.generated.h"

UCLASS(ClassGroup = Collision, editinlinenew, hidecategories = (Object, LOD, Lighting, TextureStreaming),
	meta = (DisplayName = "Sphere Collision", BlueprintSpawnableComponent))
class ENGINE_API USphereComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** In centimetres; scaled with the component. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	void SetSphereRadius(float InSphereRadius, bool bUpdateOverlaps = true) { SphereRadius = InSphereRadius; }
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	float GetUnscaledSphereRadius() const { return SphereRadius; }

protected:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Shape)
	float SphereRadius = 32.0f;
};
