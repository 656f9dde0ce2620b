#pragma once

#include "UObject/UObjectGlobals.h"
#include "Skeleton.generated.h"

/** The bones that meshes and animations share. Here it is a name. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API USkeleton : public UObject
{
	GENERATED_BODY()
};
