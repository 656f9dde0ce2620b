#pragma once

#include "Components/LightComponent.h"
#include "PointLightComponent.generated.h"

/** Light in all directions from a place. */
UCLASS(Blueprintable, ClassGroup = (Lights, Common), hidecategories = (Object, LightShafts), editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UPointLightComponent : public ULightComponent
{
	GENERATED_BODY()

public:
	UPointLightComponent();

	/** In centimetres: how far the light reaches. */
	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float AttenuationRadius = 1000.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light, AdvancedDisplay)
	uint8 bUseInverseSquaredFalloff : 1 = 1;

	UPROPERTY(interp, BlueprintReadOnly, Category = Light, AdvancedDisplay)
	float LightFalloffExponent = 8.0f;

	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float SourceRadius = 0.0f;

	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float SourceLength = 0.0f;

	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetAttenuationRadius(float NewRadius) { AttenuationRadius = NewRadius; }
};
