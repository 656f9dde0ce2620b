#pragma once

#include "Sound/SoundBase.h"
#include "SoundWave.generated.h"

/** A recorded sound. Here it is a name with its settings; there are no samples. */
UCLASS(hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API USoundWave : public USoundBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = SoundWave, AssetRegistrySearchable)
	uint8 bLooping : 1 = 0;

	UPROPERTY(EditAnywhere, Category = Sound)
	float Volume = 1.0f;

	UPROPERTY(EditAnywhere, Category = Sound)
	float Pitch = 1.0f;
};
