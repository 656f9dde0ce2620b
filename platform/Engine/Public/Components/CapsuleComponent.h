#pragma once

#include "Components/ShapeComponent.h"
#include "CapsuleComponent.generated.h"

UCLASS(ClassGroup = Collision, editinlinenew, hidecategories = (Object, LOD, Lighting, TextureStreaming),
	meta = (DisplayName = "Capsule Collision", BlueprintSpawnableComponent))
class ENGINE_API UCapsuleComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Both in centimetres; a half height below the radius becomes the radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleSize(float InRadius, float InHalfHeight, bool bUpdateOverlaps = true);
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetUnscaledCapsuleRadius() const { return CapsuleRadius; }
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetUnscaledCapsuleHalfHeight() const { return CapsuleHalfHeight; }
	void InitCapsuleSize(float InRadius, float InHalfHeight) { SetCapsuleSize(InRadius, InHalfHeight); }

protected:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Shape)
	float CapsuleHalfHeight = 44.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Shape)
	float CapsuleRadius = 22.0f;
};
