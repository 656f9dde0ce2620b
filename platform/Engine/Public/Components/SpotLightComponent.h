#pragma once

#include "Components/PointLightComponent.h"
#include "SpotLightComponent.generated.h"

/** Light within a cone. */
UCLASS(Blueprintable, ClassGroup = (Lights, Common), hidecategories = Object, editinlinenew, meta = (BlueprintSpawnableComponent))
class ENGINE_API USpotLightComponent : public UPointLightComponent
{
	GENERATED_BODY()

public:
	/** In degrees. */
	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float InnerConeAngle = 0.0f;

	UPROPERTY(interp, BlueprintReadOnly, Category = Light)
	float OuterConeAngle = 44.0f;
};
