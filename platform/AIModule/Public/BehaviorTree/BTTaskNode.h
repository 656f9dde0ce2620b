#pragma once

#include "BehaviorTree/BTNode.h"
#include "BTTaskNode.generated.h"

class UBTService;

/** A leaf: something that is done. */
UCLASS(Abstract)
class AIMODULE_API UBTTaskNode : public UBTNode
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<TObjectPtr<UBTService>> Services;

protected:
	UPROPERTY(EditAnywhere, Category = Task)
	uint32 bIgnoreRestartSelf : 1 = false;
};
