#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_String.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "String"))
class AIMODULE_API UBlackboardKeyType_String : public UBlackboardKeyType
{
	GENERATED_BODY()
};
