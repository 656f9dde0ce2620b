#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTTask_BlackboardBase.generated.h"

/** Works with a key of the blackboard. */
UCLASS(Abstract)
class AIMODULE_API UBTTask_BlackboardBase : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditAnywhere)
	FBlackboardKeySelector BlackboardKey;
};
