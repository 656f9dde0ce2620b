#pragma once

#include "CoreMinimal.h"
#include "TestObject.h"
#include "TestTypes.h"
#include "UObject/Interface.h"
#include "UObject/NoExportTypes.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"
#include "TestKinds.generated.h"

/** Something was counted. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FTestCounted, int32, Count, const FString&, What);

UENUM()
namespace ETestOuter
{
enum Type : int
{
	Near,
	Far = 3,
};
}

USTRUCT()
struct TESTOBJECTS_API FTestKey
{
	GENERATED_BODY()

	UPROPERTY()
	FString Name;

	UPROPERTY()
	int32 Number = 0;

	/** An array of itself, for texts and bytes that nest without end. */
	UPROPERTY()
	TArray<FTestKey> Children;

	bool operator==(const FTestKey& Other) const { return Name == Other.Name && Number == Other.Number; }
	friend uint32 GetTypeHash(const FTestKey& Key) { return HashCombine(GetTypeHash(Key.Name), GetTypeHash(Key.Number)); }
};

UINTERFACE()
class UTestGreeter : public UInterface
{
	GENERATED_BODY()
};

class TESTOBJECTS_API ITestGreeter
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable)
	virtual FString Greet(const FString& Name) = 0;

	UFUNCTION(BlueprintNativeEvent)
	int32 Count(int32 Times);
};

/** Has a property of each kind that UTestObject has not. */
UCLASS()
class TESTOBJECTS_API UTestKinds : public UObject, public ITestGreeter
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(FString, FAsk, int32, Number);

	UPROPERTY()
	int8 Tiny = 0;

	UPROPERTY()
	int16 Short = 0;

	UPROPERTY()
	uint16 UnsignedShort = 0;

	UPROPERTY()
	uint32 Unsigned = 0;

	UPROPERTY()
	uint64 UnsignedLong = 0;

	UPROPERTY()
	TEnumAsByte<ETestOuter::Type> Outer = ETestOuter::Near;

	UPROPERTY()
	int32 Fixed[3] = { 1, 2, 3 };

	UPROPERTY()
	TWeakObjectPtr<UTestKinds> Weak;

	UPROPERTY()
	TSoftObjectPtr<UTestKinds> Soft;

	UPROPERTY()
	TSoftClassPtr<UTestKinds> SoftClass;

	UPROPERTY()
	UClass* Class = nullptr;

	UPROPERTY()
	TScriptInterface<ITestGreeter> Greeter;

	UPROPERTY()
	TSet<FString> Words;

	UPROPERTY()
	TSet<FTestKey> Keys;

	UPROPERTY()
	TMap<FName, int32> Counts;

	UPROPERTY()
	TMap<FTestKey, TObjectPtr<UObject>> Owners;

	UPROPERTY()
	TMap<int8, FVector> Places;

	UPROPERTY()
	FAsk Ask;

	UPROPERTY(BlueprintAssignable)
	FTestCounted OnCounted;

	UPROPERTY()
	FVector Place;

	UPROPERTY()
	FTransform Transform;

	UPROPERTY()
	FLinearColor Color;

	UPROPERTY()
	FColor Pixel;

	UPROPERTY()
	FGuid Guid;

	UPROPERTY()
	FDateTime Time;

	UPROPERTY()
	FTimespan Span;

	UPROPERTY()
	FSoftObjectPath Path;

	UPROPERTY()
	FTopLevelAssetPath Asset;

	UPROPERTY()
	FTestKey Tree;

	virtual FString Greet(const FString& Name) override { return TEXT("Hello, ") + Name; }
	virtual int32 Count_Implementation(int32 Times) override { return Times + 1; }

	UFUNCTION()
	FString Answer(int32 Number) { return FString::FromInt(Number + 1); }

	UFUNCTION()
	void NoteCount(int32 InCount, const FString& What);

	/** Doubles both, in a block where the first is not aligned as the second. */
	UFUNCTION(BlueprintNativeEvent)
	bool Double(uint8 Small, UPARAM(ref) double& Large) const;

	UFUNCTION(BlueprintImplementableEvent)
	FString Tell(const FString& Text);

	FString Noted;
};
