#pragma once

#include "BehaviorTree/BTService.h"
#include "BTService_BlueprintBase.generated.h"

class AAIController;
class AActor;
class APawn;

/** What Blueprints of services derive from. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTService_BlueprintBase : public UBTService
{
	GENERATED_BODY()

protected:
	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveSearchStart(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveActivation(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveDeactivation(AActor* OwnerActor);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	UFUNCTION(BlueprintImplementableEvent, Category = AI)
	void ReceiveActivationAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** Shows the node's properties in its description. */
	UPROPERTY(EditInstanceOnly, Category = Description)
	uint32 bShowPropertyDetails : 1 = true;
};
