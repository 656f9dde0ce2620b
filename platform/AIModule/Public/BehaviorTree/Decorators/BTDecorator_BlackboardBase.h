#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_BlackboardBase.generated.h"

/** Looks at a key of the blackboard. */
UCLASS(Abstract)
class AIMODULE_API UBTDecorator_BlackboardBase : public UBTDecorator
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditAnywhere)
	FBlackboardKeySelector BlackboardKey;
};
