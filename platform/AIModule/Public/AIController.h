#pragma once

#include "GameFramework/Controller.h"
#include "AIController.generated.h"

/** Decides for a pawn that no player has. */
UCLASS(Blueprintable)
class AIMODULE_API AAIController : public AController
{
	GENERATED_BODY()

public:
	UPROPERTY(EditDefaultsOnly, Category = AI)
	uint32 bStartAILogicOnPossess : 1 = false;

	UPROPERTY(EditDefaultsOnly, Category = AI)
	uint32 bStopAILogicOnUnposses : 1 = true;

	UPROPERTY(EditDefaultsOnly, Category = AI)
	uint32 bWantsPlayerState : 1 = false;

	UPROPERTY(EditDefaultsOnly, Category = AI)
	uint32 bSetControlRotationFromPawnOrientation : 1 = true;
};
