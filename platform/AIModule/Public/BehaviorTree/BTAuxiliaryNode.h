#pragma once

#include "BehaviorTree/BTNode.h"
#include "BTAuxiliaryNode.generated.h"

/** A node that hangs on another one. */
UCLASS(Abstract)
class AIMODULE_API UBTAuxiliaryNode : public UBTNode
{
	GENERATED_BODY()
};
