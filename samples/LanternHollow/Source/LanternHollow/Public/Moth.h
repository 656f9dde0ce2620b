#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Moth.generated.h"

class ULantern;

UENUM(BlueprintType)
enum class EMothMood : uint8
{
	Resting UMETA(DisplayName = "Resting"),
	Curious UMETA(DisplayName = "Curious"),
	Circling UMETA(DisplayName = "Circling")
};

/** A moth of the hollow. It goes to bright glass, stays while the light is good, and leaves when the lantern burns pale oil. */
UCLASS(BlueprintType)
class LANTERNHOLLOW_API UMoth : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Moth")
	FString MothName;

	UPROPERTY(BlueprintReadOnly, Category = "Moth")
	EMothMood Mood = EMothMood::Resting;

	/** The brightness from which a lantern is worth a flight. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Moth", meta = (ClampMin = "0.0", ClampMax = "1.0"))
	float Longing = 0.5f;

	/** The lantern that it circles, or none. */
	UPROPERTY(BlueprintReadOnly, Category = "Moth")
	ULantern* Goal = nullptr;

	/** Looks at a lantern and flies to it, or away from it. */
	UFUNCTION(BlueprintCallable, Category = "Moth")
	void Consider(ULantern* Lantern);

	/** Leaves the lantern that it circles. */
	UFUNCTION(BlueprintCallable, Category = "Moth")
	void FlyOff();
};
