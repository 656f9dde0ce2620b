#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectGlobals.h"
#include "UserDefinedEnum.generated.h"

/** An enum made in the editor. Its enumerators are called "<Enum>::NewEnumerator<N>"; people see their display names. */
UCLASS()
class ENGINE_API UUserDefinedEnum : public UEnum
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FText EnumDescription;

	/** By the enumerators' names. */
	UPROPERTY()
	TMap<FName, FText> DisplayNameMap;
};
