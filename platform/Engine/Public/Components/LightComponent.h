#pragma once

#include "Components/LightComponentBase.h"
#include "LightComponent.generated.h"

UCLASS(abstract, HideCategories = (Trigger, Activation, "Components|Activation", Physics), ShowCategories = (Mobility))
class ENGINE_API ULightComponent : public ULightComponentBase
{
	GENERATED_BODY()

public:
	/** In Kelvin; counts with bUseTemperature. */
	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float Temperature = 6500.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Light)
	uint8 bUseTemperature : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetIntensity(float NewIntensity) { Intensity = NewIntensity; }
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetTemperature(float NewTemperature) { Temperature = NewTemperature; }
	/** @param bSRGB the colour is brought from linear space into sRGB */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetLightColor(FLinearColor NewLightColor, bool bSRGB = true);
	FLinearColor GetLightColor() const;
};
