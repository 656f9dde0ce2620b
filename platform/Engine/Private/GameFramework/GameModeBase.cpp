#include "GameFramework/GameModeBase.h"

#include "GameFramework/Pawn.h"
#include "GameFramework/PlayerController.h"

AGameModeBase::AGameModeBase()
	: PlayerControllerClass(APlayerController::StaticClass())
	, DefaultPawnClass(APawn::StaticClass())
{
}
