#pragma once

#include "UObject/UObjectGlobals.h"
#include "TestParts.generated.h"

UCLASS()
class TESTOBJECTS_API UTestPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 Number = 1;

	UPROPERTY()
	TObjectPtr<UObject> Friend;
};

/** Has objects inside it, and references that are no properties. */
UCLASS()
class TESTOBJECTS_API UTestWhole : public UObject
{
	GENERATED_BODY()

public:
	UTestWhole();
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(bool) override { ++Duplications; }

	UPROPERTY(Instanced)
	TObjectPtr<UTestPart> Part;

	UPROPERTY()
	TObjectPtr<UTestPart> Shared;

	UPROPERTY(Instanced)
	TArray<TObjectPtr<UTestPart>> Extras;

	UPROPERTY(DuplicateTransient)
	int32 Cache = 5;

	UPROPERTY(AssetRegistrySearchable)
	FString Title;

	TArray<UObject*> Links;
	int32 Duplications = 0;
};

/** Changes what its super class has made. */
UCLASS()
class TESTOBJECTS_API UTestDerivedWhole : public UTestWhole
{
	GENERATED_BODY()

public:
	UTestDerivedWhole();
};
