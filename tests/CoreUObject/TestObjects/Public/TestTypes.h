#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectPtr.h"
#include "TestTypes.generated.h"

class UObject;

/** How it is done. */
UENUM(BlueprintType)
enum class ETestMode : uint8
{
	/** Without haste. */
	Slow UMETA(DisplayName = "Quite Slow"),
	VeryFast = 7,
};

UENUM()
enum class ETestWide : int64
{
	Low = -5,
	High = 1LL << 40,
	ETestWide_MAX,
};

UENUM()
enum ETestOld : uint8
{
	Old_First,
	Old_Second = 200,
};

USTRUCT(BlueprintType)
struct TESTOBJECTS_API FTestItem
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Count = 1;

	UPROPERTY()
	FString Label;

	UPROPERTY()
	TArray<FString> Tags;

	UPROPERTY()
	TObjectPtr<UObject> Owner;
};

USTRUCT()
struct FTestDerivedItem : public FTestItem
{
	GENERATED_BODY()

	UPROPERTY()
	float Weight = 0.5f;
};
