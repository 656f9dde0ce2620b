#pragma once

#include "GameFramework/Controller.h"
#include "PlayerController.generated.h"

/** A human player's controller. */
UCLASS(config = Game, BlueprintType, Blueprintable,
	meta = (ShortTooltip = "A Player Controller is an actor responsible for controlling a Pawn used by the player."))
class ENGINE_API APlayerController : public AController
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = MouseInterface)
	uint8 bShowMouseCursor : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = MouseInterface)
	uint8 bEnableClickEvents : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = MouseInterface)
	uint8 bEnableMouseOverEvents : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = PlayerController)
	uint8 bAutoManageActiveCameraTarget : 1 = 1;
};
