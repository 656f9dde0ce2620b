#pragma once

#include "BehaviorTree/BTCompositeNode.h"
#include "BTComposite_Selector.generated.h"

/** Runs its children from left to right until one succeeds. */
UCLASS()
class AIMODULE_API UBTComposite_Selector : public UBTCompositeNode
{
	GENERATED_BODY()

public:
	UBTComposite_Selector() { NodeName = TEXT("Selector"); }
};
