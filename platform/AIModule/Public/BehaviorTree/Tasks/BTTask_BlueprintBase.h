#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "BTTask_BlueprintBase.generated.h"

class AAIController;
class AActor;
class APawn;

/** What Blueprints of tasks derive from. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTTask_BlueprintBase : public UBTTaskNode
{
	GENERATED_BODY()

protected:
	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveExecute(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveAbort(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveExecuteAI(AAIController* OwnerController, APawn* ControlledPawn);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveAbortAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** Shows the node's properties in its description. */
	UPROPERTY(EditInstanceOnly, Category = Description)
	uint32 bShowPropertyDetails : 1 = true;
};
