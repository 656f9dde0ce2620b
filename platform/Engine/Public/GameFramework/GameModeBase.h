#pragma once

#include "GameFramework/Actor.h"
#include "GameModeBase.generated.h"

class APlayerController;

/** The rules of a game: who comes into it as what. */
UCLASS(config = Game, notplaceable, BlueprintType, Blueprintable, Transient,
	hideCategories = (Info, Rendering, MovementReplication, Replication, Actor),
	meta = (ShortTooltip = "Game Mode Base defines the game being played, its rules, scoring, and other facets of the game type."))
class ENGINE_API AGameModeBase : public AActor
{
	GENERATED_BODY()

public:
	AGameModeBase();

	UPROPERTY(EditAnywhere, NoClear, BlueprintReadOnly, Category = Classes)
	TSubclassOf<APlayerController> PlayerControllerClass;

	UPROPERTY(EditAnywhere, NoClear, BlueprintReadOnly, Category = Classes, meta = (DisplayName = "Default Pawn Class"))
	TSubclassOf<APawn> DefaultPawnClass;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Game)
	FText DefaultPlayerName;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = GameMode)
	uint8 bStartPlayersAsSpectators : 1 = 0;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = GameMode)
	uint8 bPauseable : 1 = 1;

	UFUNCTION(BlueprintImplementableEvent, Category = Game, meta = (DisplayName = "OnPostLogin", ScriptName = "OnPostLogin"))
	void K2_PostLogin(APlayerController* NewPlayer);
};
