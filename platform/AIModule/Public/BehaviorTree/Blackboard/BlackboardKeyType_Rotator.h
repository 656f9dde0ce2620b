#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_Rotator.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "Rotator"))
class AIMODULE_API UBlackboardKeyType_Rotator : public UBlackboardKeyType
{
	GENERATED_BODY()
};
