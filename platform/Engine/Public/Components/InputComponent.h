#pragma once

#include "Components/ActorComponent.h"
#include "InputComponent.generated.h"

/** What an actor does on a player's input. */
UCLASS(NotBlueprintable, transient, config = Input, hidecategories = (Activation, "Components|Activation"))
class ENGINE_API UInputComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** The higher, the earlier it sees the input. */
	UPROPERTY()
	int32 Priority = 0;

	UPROPERTY()
	uint8 bBlockInput : 1 = 0;
};
