#pragma once

#include "BehaviorTree/Tasks/BTTask_Wait.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTTask_WaitBlackboardTime.generated.h"

/** Waits for as long as a key says. */
UCLASS()
class AIMODULE_API UBTTask_WaitBlackboardTime : public UBTTask_Wait
{
	GENERATED_BODY()

public:
	UBTTask_WaitBlackboardTime() { NodeName = TEXT("Wait Blackboard Time"); }

	UPROPERTY(Category = Blackboard, EditAnywhere)
	FBlackboardKeySelector BlackboardKey;
};
