#pragma once

#include "BehaviorTree/Tasks/BTTask_BlackboardBase.h"
#include "BTTask_MoveTo.generated.h"

/** Moves the pawn to the place or actor of a key. */
UCLASS()
class AIMODULE_API UBTTask_MoveTo : public UBTTask_BlackboardBase
{
	GENERATED_BODY()

public:
	UBTTask_MoveTo() { NodeName = TEXT("Move To"); }

	/** In centimetres. */
	UPROPERTY(Category = Node, EditAnywhere, meta = (ClampMin = "0.0"))
	float AcceptableRadius = 5.0f;

	UPROPERTY(Category = Node, EditAnywhere)
	uint32 bAllowStrafe : 1 = false;

	UPROPERTY(Category = Node, EditAnywhere)
	uint32 bAllowPartialPath : 1 = true;
};
