#pragma once

#include "BehaviorTree/BTService.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTService_BlackboardBase.generated.h"

/** Works with a key of the blackboard. */
UCLASS(Abstract)
class AIMODULE_API UBTService_BlackboardBase : public UBTService
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditAnywhere)
	FBlackboardKeySelector BlackboardKey;
};
