#pragma once

#include "BehaviorTree/Decorators/BTDecorator_BlackboardBase.h"
#include "BTDecorator_Blackboard.generated.h"

/** Compares a key with a value. */
UCLASS()
class AIMODULE_API UBTDecorator_Blackboard : public UBTDecorator_BlackboardBase
{
	GENERATED_BODY()

public:
	UBTDecorator_Blackboard() { NodeName = TEXT("Blackboard Based Condition"); }

	UPROPERTY(Category = Blackboard, EditAnywhere)
	int32 IntValue = 0;

	UPROPERTY(Category = Blackboard, EditAnywhere)
	float FloatValue = 0.0f;

	UPROPERTY(Category = Blackboard, EditAnywhere)
	FString StringValue;

	/** Which comparison, by the kind of the key. */
	UPROPERTY()
	uint8 OperationType = 0;
};
