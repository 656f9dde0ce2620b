#pragma once

#include "BehaviorTree/BTAuxiliaryNode.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTDecorator.generated.h"

/** A condition on the link from a composite to a child. */
UCLASS(Abstract)
class AIMODULE_API UBTDecorator : public UBTAuxiliaryNode
{
	GENERATED_BODY()

public:
	bool IsInversed() const { return bInverseCondition; }
	EBTFlowAbortMode::Type GetFlowAbortMode() const { return FlowAbortMode; }
	void SetIsInversed(bool bShouldBeInversed) { bInverseCondition = bShouldBeInversed; }

private:
	UPROPERTY(Category = Condition, EditAnywhere)
	uint32 bInverseCondition : 1 = false;

protected:
	UPROPERTY(Category = FlowControl, EditAnywhere)
	TEnumAsByte<EBTFlowAbortMode::Type> FlowAbortMode = EBTFlowAbortMode::None;
};
