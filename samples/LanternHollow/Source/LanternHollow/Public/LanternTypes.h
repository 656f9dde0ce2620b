#pragma once

#include "CoreMinimal.h"
#include "LanternTypes.generated.h"

/** The parts of a night, by what they ask of the keeper. */
UENUM(BlueprintType)
enum class ENightPhase : uint8
{
	/** Before dusk and after dawn: nothing burns. */
	Day UMETA(DisplayName = "Day"),
	/** The first hour: time to walk the paths and light up. */
	Dusk UMETA(DisplayName = "Dusk"),
	/** The long middle: oil runs down and moths gather. */
	DeepNight UMETA(DisplayName = "Deep Night"),
	/** The last hour: what still burns will see the morning. */
	SmallHours UMETA(DisplayName = "Small Hours")
};

/** What a lantern burns. */
USTRUCT(BlueprintType)
struct FOilBlend
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Oil")
	FName Name = TEXT("Amber");

	/** Millilitres that a lantern at full flame uses in an hour. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Oil", meta = (ClampMin = "0.0"))
	float PerHour = 18.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Oil")
	bool bDrawsMoths = true;
};
