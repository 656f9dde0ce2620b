#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "OilStore.generated.h"

class ULantern;

/** The keeper's oil for the night. It is filled at dusk and never again before dawn. */
UCLASS(BlueprintType)
class LANTERNHOLLOW_API UOilStore : public UObject
{
	GENERATED_BODY()

public:
	/** Millilitres in the store. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Oil")
	float Stock = 0.0f;

	/** The paths that got oil tonight, in the order of the keeper's walk. */
	UPROPERTY(BlueprintReadOnly, Category = "Oil")
	TArray<FString> PathsServed;

	/** Fills a lantern as far as it holds and the store has; returns the millilitres that it got. */
	UFUNCTION(BlueprintCallable, Category = "Oil")
	float Serve(ULantern* Lantern);

	/** Hours that the stock would keep so many lanterns at full flame; 0 when none burns. */
	UFUNCTION(BlueprintPure, Category = "Oil")
	float HoursFor(int32 Lanterns, float PerHour) const;
};
