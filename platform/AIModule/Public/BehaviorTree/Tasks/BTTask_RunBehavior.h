#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BTTask_RunBehavior.generated.h"

class UBehaviorTree;

/** Runs another tree. */
UCLASS()
class AIMODULE_API UBTTask_RunBehavior : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UBTTask_RunBehavior() { NodeName = TEXT("Run Behavior"); }

	UPROPERTY(Category = Node, EditAnywhere)
	TObjectPtr<UBehaviorTree> BehaviorAsset;
};
