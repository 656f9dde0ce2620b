#pragma once

#include "GameFramework/Actor.h"
#include "Pawn.generated.h"

UENUM(BlueprintType)
enum class EAutoPossessAI : uint8
{
	Disabled,
	PlacedInWorld,
	Spawned,
	PlacedInWorldOrSpawned,
};

/** An actor that a player or an AI can control. */
UCLASS(config = Game, BlueprintType, Blueprintable, hideCategories = (Navigation),
	meta = (ShortTooltip = "A Pawn is an actor that can be 'possessed' and receive input from a controller."))
class ENGINE_API APawn : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Pawn)
	uint8 bUseControllerRotationPitch : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Pawn)
	uint8 bUseControllerRotationYaw : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Pawn)
	uint8 bUseControllerRotationRoll : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Pawn)
	uint8 bCanAffectNavigationGeneration : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Camera)
	float BaseEyeHeight = 64.0f;

	UPROPERTY(EditAnywhere, Category = Pawn)
	TEnumAsByte<EAutoReceiveInput::Type> AutoPossessPlayer = EAutoReceiveInput::Disabled;

	UPROPERTY(EditAnywhere, Category = Pawn)
	EAutoPossessAI AutoPossessAI = EAutoPossessAI::PlacedInWorld;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, meta = (DisplayName = "AI Controller Class"), Category = Pawn)
	TSubclassOf<AController> AIControllerClass;

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	AController* GetController() const { return Controller; }
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsControlled() const { return Controller != nullptr; }
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FRotator GetControlRotation() const;
	/** The world's movement input for this frame, summed up until it is consumed. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "AddInput"))
	virtual void AddMovementInput(FVector WorldDirection, float ScaleValue = 1.0f, bool bForce = false);
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "ConsumeInput"))
	virtual FVector ConsumeMovementInputVector();

	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Possessed"))
	void ReceivePossessed(AController* NewController);
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Unpossessed"))
	void ReceiveUnpossessed(AController* OldController);

	/** Called by controllers. */
	virtual void PossessedBy(AController* NewController);
	virtual void UnPossessed();

private:
	UPROPERTY(Transient)
	TObjectPtr<AController> Controller;

	UPROPERTY(Transient)
	FVector ControlInputVector = FVector::ZeroVector;
};
