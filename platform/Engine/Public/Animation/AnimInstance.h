#pragma once

#include "UObject/UObjectGlobals.h"
#include "AnimInstance.generated.h"

class AActor;
class APawn;

/** What an animation Blueprint's class derives from: the animation of one mesh. Its outer is the mesh component. */
UCLASS(transient, Blueprintable, hideCategories = AnimInstance, BlueprintType)
class ENGINE_API UAnimInstance : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Animation")
	AActor* GetOwningActor() const;
	/** Null when the owner is no pawn. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	APawn* TryGetPawnOwner() const;

	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintInitializeAnimation();
	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintUpdateAnimation(float DeltaTimeX);
	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintPostEvaluateAnimation();
	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintBeginPlay();
};
