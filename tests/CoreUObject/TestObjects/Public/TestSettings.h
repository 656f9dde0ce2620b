#pragma once

#include "CoreMinimal.h"
#include "TestTypes.h"
#include "UObject/Object.h"
#include "TestSettings.generated.h"

UCLASS(Config = TestGame, DefaultConfig)
class TESTOBJECTS_API UTestSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Config)
	FString Key = TEXT("none");

	UPROPERTY(Config)
	bool bShown = true;

	UPROPERTY(Config)
	int32 Limit = 3;

	UPROPERTY(Config)
	ETestMode Mode = ETestMode::Slow;

	UPROPERTY(Config)
	TArray<FString> Words = { TEXT("one"), TEXT("two") };

	UPROPERTY(Config)
	FTestItem Item;

	UPROPERTY(GlobalConfig)
	int32 Shared = 0;

	UPROPERTY()
	int32 NotSaved = 1;
};

UCLASS()
class TESTOBJECTS_API UTestDerivedSettings : public UTestSettings
{
	GENERATED_BODY()

public:
	UPROPERTY(Config)
	float Own = 1.0f;
};

/** Not DefaultConfig. */
UCLASS(Config = TestUser)
class TESTOBJECTS_API UTestUserSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Config)
	int32 Value = 0;

	UPROPERTY(Config)
	int32 Other = 0;
};
