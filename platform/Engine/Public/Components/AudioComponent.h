#pragma once

#include "Components/SceneComponent.h"
#include "AudioComponent.generated.h"

class USoundBase;

/** Where a sound comes from. */
UCLASS(ClassGroup = (Audio, Common), hidecategories = (Object, ActorComponent, Physics, Rendering, Mobility, LOD), ShowCategories = Trigger,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UAudioComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Sound)
	TObjectPtr<USoundBase> Sound;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Sound)
	float VolumeMultiplier = 1.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Sound)
	float PitchMultiplier = 1.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Sound)
	uint8 bIsUISound : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Attenuation)
	uint8 bAllowSpatialization : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Attenuation)
	uint8 bOverrideAttenuation : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetSound(USoundBase* NewSound) { Sound = NewSound; }
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetVolumeMultiplier(float NewVolumeMultiplier) { VolumeMultiplier = NewVolumeMultiplier; }
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetPitchMultiplier(float NewPitchMultiplier) { PitchMultiplier = NewPitchMultiplier; }
};
