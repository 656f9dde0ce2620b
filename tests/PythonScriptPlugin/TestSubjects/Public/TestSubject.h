#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/NoExportTypes.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "TestSubject.generated.h"

UENUM(BlueprintType)
enum class ETestShade : uint8
{
	Pitch_Black,
	DarkGrey = 4,
	White,
};

USTRUCT(BlueprintType)
struct TESTSUBJECTS_API FTestPlate
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	FString Inscription;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	bool bGilded = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	TArray<int32> Years;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	TObjectPtr<UObject> Maker;

	/** A plate in itself, for values that nest without end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	TArray<FTestPlate> Smaller;
};

/** Has a property of each kind that scripts know. */
UCLASS(BlueprintType, Blueprintable)
class TESTSUBJECTS_API UTestSubject : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	bool bIsLit = false;

	UPROPERTY(EditAnywhere, Category = Test)
	uint8 bFirst : 1 = 1;

	UPROPERTY(EditAnywhere, Category = Test)
	uint8 bSecond : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	int32 OilLeft = 7;

	UPROPERTY(EditAnywhere, Category = Test)
	uint8 Small = 0;

	UPROPERTY(EditAnywhere, Category = Test)
	int64 Long = 0;

	UPROPERTY(EditAnywhere, Category = Test)
	uint64 LongUnsigned = 0;

	UPROPERTY(EditAnywhere, Category = Test)
	float Ratio = 0.5f;

	UPROPERTY(EditAnywhere, Category = Test)
	double Exact = 0.25;

	UPROPERTY(EditAnywhere, Category = Test)
	FString Title = TEXT("Old");

	UPROPERTY(EditAnywhere, Category = Test)
	FName Tag;

	UPROPERTY(EditAnywhere, Category = Test)
	FText Label;

	UPROPERTY(EditAnywhere, Category = Test)
	ETestShade Shade = ETestShade::Pitch_Black;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Test)
	FVector Place;

	UPROPERTY(EditAnywhere, Category = Test)
	FTestPlate Plate;

	UPROPERTY(EditAnywhere, Category = Test)
	TArray<FTestPlate> Plates;

	UPROPERTY(EditAnywhere, Category = Test)
	TSet<FName> Words;

	UPROPERTY(EditAnywhere, Category = Test)
	TMap<FString, double> Prices;

	UPROPERTY(EditAnywhere, Category = Test)
	int32 Fixed[3] = { 1, 2, 3 };

	UPROPERTY(EditAnywhere, Category = Test)
	TObjectPtr<UTestSubject> Friend;

	UPROPERTY(EditAnywhere, Category = Test)
	TWeakObjectPtr<UTestSubject> Acquaintance;

	UPROPERTY(EditAnywhere, Category = Test)
	TSubclassOf<UTestSubject> Kind;

	UPROPERTY(EditAnywhere, Category = Test)
	TSoftObjectPtr<UTestSubject> Distant;

	UPROPERTY(EditAnywhere, Category = Test)
	TSoftClassPtr<UTestSubject> DistantKind;

	UPROPERTY()
	int32 Secret = 0;

	UPROPERTY(VisibleAnywhere, Category = Test)
	int32 OnlySeen = 0;

	UPROPERTY(EditDefaultsOnly, Category = Test)
	int32 OfDefaults = 0;

	UFUNCTION(BlueprintCallable, Category = Test)
	int32 BurnOil(int32 Hours, int32 PerHour = 2)
	{
		OilLeft -= Hours * PerHour;
		return OilLeft;
	}

	UFUNCTION(BlueprintCallable, Category = Test)
	bool FindWord(const FName& Word, int32& OutIndex, FString& OutText) const;

	UFUNCTION(BlueprintCallable, Category = Test)
	static FString JoinWords(const TArray<FString>& Parts, const FString& Between = TEXT("-"));

	/** Scripts can't call it. */
	UFUNCTION()
	void Hide() {}

	void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	TArray<FName> Changed;
};
