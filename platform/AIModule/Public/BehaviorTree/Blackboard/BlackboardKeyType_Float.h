#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_Float.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "Float"))
class AIMODULE_API UBlackboardKeyType_Float : public UBlackboardKeyType
{
	GENERATED_BODY()
};
