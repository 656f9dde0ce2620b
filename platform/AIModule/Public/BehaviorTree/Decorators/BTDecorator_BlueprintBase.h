#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_BlueprintBase.generated.h"

class AAIController;
class AActor;
class APawn;

/** What Blueprints of decorators derive from. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTDecorator_BlueprintBase : public UBTDecorator
{
	GENERATED_BODY()

protected:
	/** Whether the condition holds. */
	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	bool PerformConditionCheck(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	bool PerformConditionCheckAI(AAIController* OwnerController, APawn* ControlledPawn);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveObserverActivated(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveObserverDeactivated(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	/** Shows the node's properties in its description. */
	UPROPERTY(EditInstanceOnly, Category = Description)
	uint32 bShowPropertyDetails : 1 = true;
};
