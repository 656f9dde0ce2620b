#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "TestTypes.h"
#include "UObject/Object.h"
#include "TestObject.generated.h"

class UTestOther;

/**
 * Has a property of each kind.
 */
UCLASS(BlueprintType, meta = (Note = "on the class"))
class TESTOBJECTS_API UTestObject : public UObject
{
	GENERATED_BODY()

public:
	/** Whether \ "it" is so. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test|Flags", meta = (DisplayName = "It Is", Extra))
	bool bWhole = true;

	UPROPERTY()
	uint8 bFirstBit : 1 = 0;

	uint8 bHiddenBit : 1 = 1;

	UPROPERTY()
	uint8 bSecondBit : 1 = 1;

	UPROPERTY()
	uint8 Byte = 0;

	UPROPERTY()
	int32 Number = 0;

	UPROPERTY()
	int64 BigNumber = 0;

	UPROPERTY()
	float Real = 0.0f;

	UPROPERTY()
	double Precise = 0.0;

	UPROPERTY()
	FString Text;

	UPROPERTY()
	FName Name;

	UPROPERTY()
	FText Title;

	UPROPERTY()
	ETestMode Mode = ETestMode::Slow;

	UPROPERTY()
	ETestWide Wide = ETestWide::Low;

	UPROPERTY()
	TEnumAsByte<ETestOld> Old = Old_First;

	UPROPERTY()
	TObjectPtr<UTestObject> Smart;

	UPROPERTY()
	UTestOther* Raw = nullptr;

	/** Named as generated code might name something of its own. */
	UPROPERTY()
	TSubclassOf<UTestObject> Type;

	UPROPERTY()
	FTestItem Item;

	UPROPERTY()
	TArray<int32> Numbers;

	UPROPERTY()
	TArray<bool> Flags;

	UPROPERTY()
	TArray<FString> Texts;

	UPROPERTY()
	TArray<FTestDerivedItem> Items;

	UPROPERTY()
	TArray<TObjectPtr<UObject>> Objects;

	/** Counts the objects that the collector has destroyed. */
	static int32 Destroyed;
	void BeginDestroy() override { ++Destroyed; }

	/** Joins. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	FString Join(const TArray<FString>& Parts, const FString& Separator, int32& OutLength) const;

	UFUNCTION(BlueprintPure)
	static int32 Twice(int32 Value) { return 2 * Value; }

protected:
	UFUNCTION()
	virtual void Reset();
};

UCLASS(Abstract)
class TESTOBJECTS_API UTestBase : public UObject
{
	GENERATED_BODY()

public:
	explicit UTestBase(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	FName ClassSeenByConstructor;
};

UCLASS()
class TESTOBJECTS_API UTestOther : public UTestBase
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<UTestObject*> Friends;
};
