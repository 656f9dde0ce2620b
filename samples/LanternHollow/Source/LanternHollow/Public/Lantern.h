#pragma once

#include "CoreMinimal.h"
#include "LanternTypes.h"
#include "UObject/Object.h"
#include "Lantern.generated.h"

/** One lantern on a path of the hollow. It burns its oil down, and moths at the glass take some of its light. */
UCLASS(BlueprintType)
class LANTERNHOLLOW_API ULantern : public UObject
{
	GENERATED_BODY()

public:
	/** The path that it keeps open. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lantern")
	FString Path;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lantern")
	FOilBlend Oil;

	/** Millilitres that the font holds. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lantern", meta = (ClampMin = "0.0"))
	float Capacity = 120.0f;

	/** Millilitres that are left. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lantern")
	float OilLeft = 60.0f;

	UPROPERTY(BlueprintReadOnly, Category = "Lantern")
	bool bLit = false;

	/** Moths that circle the glass now. */
	UPROPERTY(BlueprintReadOnly, Category = "Lantern")
	int32 MothsAtGlass = 0;

	/** Sets the wick alight. False when there is no oil to burn. */
	UFUNCTION(BlueprintCallable, Category = "Lantern")
	bool Light();

	/** Lets so many minutes pass. A lantern that runs dry goes out. */
	UFUNCTION(BlueprintCallable, Category = "Lantern")
	void Burn(float Minutes);

	/** Pours oil in; returns the millilitres that did not fit. */
	UFUNCTION(BlueprintCallable, Category = "Lantern")
	float Refill(float Millilitres);

	/** From 0 (dark) to 1 (full flame, no moths). */
	UFUNCTION(BlueprintPure, Category = "Lantern")
	float GetBrightness() const;

	/** Bright enough to keep its path open. */
	UFUNCTION(BlueprintPure, Category = "Lantern")
	bool KeepsPath() const;
};
