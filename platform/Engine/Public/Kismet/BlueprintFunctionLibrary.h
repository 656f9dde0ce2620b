#pragma once

#include "UObject/UObjectGlobals.h"
#include "BlueprintFunctionLibrary.generated.h"

/** The base of classes whose static functions every Blueprint can call. */
UCLASS(Abstract, MinimalAPI)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};
