#pragma once

#include "BehaviorTree/Tasks/BTTask_BlackboardBase.h"
#include "BTTask_RotateToFaceBBEntry.generated.h"

/** Turns the pawn to the place or actor of a key. */
UCLASS()
class AIMODULE_API UBTTask_RotateToFaceBBEntry : public UBTTask_BlackboardBase
{
	GENERATED_BODY()

public:
	UBTTask_RotateToFaceBBEntry() { NodeName = TEXT("Rotate to face BB entry"); }

	/** In degrees. */
	UPROPERTY(Category = Node, EditAnywhere)
	float Precision = 10.0f;
};
