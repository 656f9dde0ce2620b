#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_TimeLimit.generated.h"

/** Fails its branch when it takes too long. */
UCLASS()
class AIMODULE_API UBTDecorator_TimeLimit : public UBTDecorator
{
	GENERATED_BODY()

public:
	UBTDecorator_TimeLimit() { NodeName = TEXT("TimeLimit"); }

	/** In seconds. */
	UPROPERTY(Category = Decorator, EditAnywhere)
	float TimeLimit = 5.0f;
};
