#pragma once

#include "BehaviorTree/BTCompositeNode.h"
#include "BehaviorTree.generated.h"

class UBlackboardData;

/** A tree of decisions. */
UCLASS(BlueprintType)
class AIMODULE_API UBehaviorTree : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UBTCompositeNode> RootNode;

	UPROPERTY()
	TObjectPtr<UBlackboardData> BlackboardAsset;

	/** For a tree that another one runs. */
	UPROPERTY()
	TArray<TObjectPtr<UBTDecorator>> RootDecorators;

	UPROPERTY()
	TArray<FBTDecoratorLogic> RootDecoratorOps;
};
