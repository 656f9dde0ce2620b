#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_Loop.generated.h"

/** Runs its branch several times. */
UCLASS()
class AIMODULE_API UBTDecorator_Loop : public UBTDecorator
{
	GENERATED_BODY()

public:
	UBTDecorator_Loop() { NodeName = TEXT("Loop"); }

	UPROPERTY(Category = Decorator, EditAnywhere)
	int32 NumLoops = 3;

	UPROPERTY(Category = Decorator, EditAnywhere)
	bool bInfiniteLoop = false;

	/** In seconds; below zero for none. */
	UPROPERTY(Category = Decorator, EditAnywhere)
	float InfiniteLoopTimeoutTime = -1.0f;
};
