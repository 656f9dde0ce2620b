#pragma once

#include "BehaviorTree/BTCompositeNode.h"
#include "BTComposite_SimpleParallel.generated.h"

/** Runs a task, and a tree beside it. */
UCLASS()
class AIMODULE_API UBTComposite_SimpleParallel : public UBTCompositeNode
{
	GENERATED_BODY()

public:
	UBTComposite_SimpleParallel() { NodeName = TEXT("Simple Parallel"); }
};
