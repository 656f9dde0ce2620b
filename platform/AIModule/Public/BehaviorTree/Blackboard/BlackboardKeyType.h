#pragma once

#include "UObject/Object.h"
#include "BlackboardKeyType.generated.h"

/** What kind of value a blackboard's key has. */
UCLASS(EditInlineNew, Abstract, CollapseCategories)
class AIMODULE_API UBlackboardKeyType : public UObject
{
	GENERATED_BODY()
};
