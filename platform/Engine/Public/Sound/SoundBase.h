#pragma once

#include "UObject/UObjectGlobals.h"
#include "SoundBase.generated.h"

/** Something that can be heard. */
UCLASS(config = Engine, hidecategories = Object, abstract, editinlinenew, BlueprintType)
class ENGINE_API USoundBase : public UObject
{
	GENERATED_BODY()

public:
	/** In seconds. */
	UPROPERTY(Category = Info, AssetRegistrySearchable, VisibleAnywhere, BlueprintReadOnly)
	float Duration = -1.0f;

	/** In centimetres: from where on it is not heard. */
	UPROPERTY(Category = Info, AssetRegistrySearchable, VisibleAnywhere, BlueprintReadOnly)
	float MaxDistance = 0.0f;
};
