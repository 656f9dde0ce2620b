#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_ForceSuccess.generated.h"

/** Lets its branch succeed in any case. */
UCLASS()
class AIMODULE_API UBTDecorator_ForceSuccess : public UBTDecorator
{
	GENERATED_BODY()

public:
	UBTDecorator_ForceSuccess() { NodeName = TEXT("Force Success"); }
};
