#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "WindowTestSettings.generated.h"

UENUM()
enum class EWindowTestChoice : uint8
{
	First,
	/** The better one. */
	Second UMETA(DisplayName = "Number Two"),
	Secret UMETA(Hidden),
};

UENUM()
enum EWindowTestOldChoice : uint8
{
	Choice_A,
	Choice_B,
};

USTRUCT()
struct WINDOWTESTOBJECTS_API FWindowTestPart
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Count = 1;

	UPROPERTY(EditAnywhere)
	FString Label;

	UPROPERTY()
	int32 Inner = 0;
};

/** A property of every kind that a page has a widget for, and of some that it has none for. */
UCLASS(Config = WindowTest, DefaultConfig)
class WINDOWTESTOBJECTS_API UWindowTestSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Config, EditAnywhere)
	FString Text;

	UPROPERTY(Config, EditAnywhere, Category = "Words & More")
	FName Name;

	UPROPERTY(EditAnywhere, Category = "Words & More")
	FText Title;

	/** Breaks <b>nothing</b>. */
	UPROPERTY(Config, EditAnywhere, Category = "Words & More", meta = (DisplayName = "Salt & Pepper"))
	bool bSalt = false;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers")
	uint8 Small = 250;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers")
	int32 Number = 0;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers")
	int64 Wide = 0;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers")
	uint64 Widest = 0;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers|Broken")
	float Ratio = 0.1f;

	UPROPERTY(Config, EditAnywhere, Category = "Numbers|Broken")
	double Exact = 0.5;

	UPROPERTY(Config, EditAnywhere, Category = "Choices")
	EWindowTestChoice Choice = EWindowTestChoice::First;

	UPROPERTY(Config, EditAnywhere, Category = "Choices")
	TEnumAsByte<EWindowTestOldChoice> OldChoice = Choice_A;

	UPROPERTY(Config, EditAnywhere, Category = "Lists")
	TArray<int32> Numbers;

	UPROPERTY(Config, EditAnywhere, Category = "Lists")
	TArray<EWindowTestChoice> ManyChoices;

	UPROPERTY(Config, EditAnywhere, Category = "Parts")
	FWindowTestPart Part;

	UPROPERTY(EditAnywhere, Category = "Others")
	TMap<FString, int32> Map;

	UPROPERTY(VisibleAnywhere, Category = "Others")
	int32 Fixed = 7;

	UPROPERTY(EditInstanceOnly, Category = "Others")
	int32 OfInstances = 0;

	UPROPERTY(Config)
	int32 Hidden = 0;

	/** The names of the properties that it was told of, in order. */
	TArray<FName> Edits;

	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
};
