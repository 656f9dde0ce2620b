#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTTask_FinishWithResult.generated.h"

/** Ends at once. */
UCLASS()
class AIMODULE_API UBTTask_FinishWithResult : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UBTTask_FinishWithResult() { NodeName = TEXT("Finish With Result"); }

	UPROPERTY(Category = Result, EditAnywhere)
	TEnumAsByte<EBTNodeResult::Type> Result = EBTNodeResult::Succeeded;
};
