#pragma once

#include "BehaviorTree/Decorators/BTDecorator_BlackboardBase.h"
#include "BTDecorator_IsAtLocation.generated.h"

/** Whether the pawn is at the place of a key. */
UCLASS()
class AIMODULE_API UBTDecorator_IsAtLocation : public UBTDecorator_BlackboardBase
{
	GENERATED_BODY()

public:
	UBTDecorator_IsAtLocation() { NodeName = TEXT("Is At Location"); }

	/** In centimetres. */
	UPROPERTY(Category = Condition, EditAnywhere)
	float AcceptableRadius = 50.0f;
};
