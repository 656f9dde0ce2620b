#pragma once

#include "CoreMinimal.h"
#include "LanternTypes.h"
#include "UObject/Object.h"
#include "NightRules.generated.h"

/** The rules of a night, read from the game's config. The class default object holds them. */
UCLASS(Config = Game, DefaultConfig, BlueprintType)
class LANTERNHOLLOW_API UNightRules : public UObject
{
	GENERATED_BODY()

public:
	/** Hours of the clock, 0 to 24; the night goes over midnight. */
	UPROPERTY(Config, EditAnywhere, BlueprintReadOnly, Category = "Night", meta = (ClampMin = "0.0", ClampMax = "24.0"))
	float DuskHour = 21.0f;

	UPROPERTY(Config, EditAnywhere, BlueprintReadOnly, Category = "Night", meta = (ClampMin = "0.0", ClampMax = "24.0"))
	float DawnHour = 6.0f;

	/** Millilitres in the store at dusk. */
	UPROPERTY(Config, EditAnywhere, BlueprintReadOnly, Category = "Oil")
	double OilForTheNight = 1500.0;

	/** Lanterns that must keep their paths for the night to count. */
	UPROPERTY(Config, EditAnywhere, BlueprintReadOnly, Category = "Night")
	int32 LanternsToKeep = 3;

	UPROPERTY(Config, EditAnywhere, BlueprintReadOnly, Category = "Moths")
	TArray<FString> MothNames;

	/** How long the night is, in hours. */
	UFUNCTION(BlueprintPure, Category = "Night")
	float GetLength() const;

	/** What an hour of the clock belongs to. */
	UFUNCTION(BlueprintPure, Category = "Night")
	ENightPhase GetPhase(float Hour) const;

	UFUNCTION(BlueprintPure, Category = "Night")
	bool IsWon(int32 LanternsKept) const;
};
