#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BTTask_MakeNoise.generated.h"

/** Lets others hear the pawn. */
UCLASS()
class AIMODULE_API UBTTask_MakeNoise : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UBTTask_MakeNoise() { NodeName = TEXT("Make Noise"); }

	UPROPERTY(Category = Node, EditAnywhere)
	float Loudnes = 1.0f;
};
