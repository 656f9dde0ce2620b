#pragma once

#include "Components/SceneComponent.h"
#include "LightComponentBase.generated.h"

UCLASS(abstract, HideCategories = (Trigger, Activation, "Components|Activation", Physics), ShowCategories = (Mobility))
class ENGINE_API ULightComponentBase : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, interp, Category = Light, meta = (DisplayName = "Intensity", UIMin = "0.0", UIMax = "20.0"))
	float Intensity = 3.1415926f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light, meta = (HideAlphaChannel))
	FColor LightColor = FColor(255, 255, 255, 255);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light)
	uint8 bAffectsWorld : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light)
	uint8 CastShadows : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light, AdvancedDisplay)
	uint8 CastStaticShadows : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light, AdvancedDisplay)
	uint8 CastDynamicShadows : 1 = 1;

	UPROPERTY(BlueprintReadOnly, interp, Category = Light, AdvancedDisplay)
	float IndirectLightingIntensity = 1.0f;

	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetCastShadows(bool bNewValue) { CastShadows = bNewValue; }
};
