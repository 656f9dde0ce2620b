#pragma once

#include "BehaviorTree/BTAuxiliaryNode.h"
#include "BTService.generated.h"

/** Runs again and again while a branch is active. */
UCLASS(Abstract)
class AIMODULE_API UBTService : public UBTAuxiliaryNode
{
	GENERATED_BODY()

protected:
	/** In seconds. */
	UPROPERTY(Category = Service, EditAnywhere, meta = (ClampMin = "0.001"))
	float Interval = 0.5f;

	/** Added to the interval, up or down. */
	UPROPERTY(Category = Service, EditAnywhere, meta = (ClampMin = "0.0"))
	float RandomDeviation = 0.1f;

	UPROPERTY(Category = Service, EditAnywhere, AdvancedDisplay)
	uint32 bCallTickOnSearchStart : 1 = false;

	UPROPERTY(Category = Service, EditAnywhere, AdvancedDisplay)
	uint32 bRestartTimerOnEachActivation : 1 = false;
};
