#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BTTask_Wait.generated.h"

/** Waits. */
UCLASS()
class AIMODULE_API UBTTask_Wait : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UBTTask_Wait() { NodeName = TEXT("Wait"); }

	/** In seconds. */
	UPROPERTY(Category = Wait, EditAnywhere, meta = (ClampMin = "0.0"))
	float WaitTime = 5.0f;

	/** Added to the time, up or down. */
	UPROPERTY(Category = Wait, EditAnywhere, meta = (ClampMin = "0.0"))
	float RandomDeviation = 0.0f;
};
