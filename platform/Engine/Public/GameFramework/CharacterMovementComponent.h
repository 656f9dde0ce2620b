#pragma once

#include "GameFramework/MovementComponent.h"
#include "CharacterMovementComponent.generated.h"

UENUM(BlueprintType)
enum EMovementMode : int
{
	MOVE_None,
	MOVE_Walking,
	MOVE_NavWalking,
	MOVE_Falling,
	MOVE_Swimming,
	MOVE_Flying,
	MOVE_Custom,
	MOVE_MAX,
};

/** Moves a character: walking, falling, swimming, flying. Speeds are in centimetres per second. */
UCLASS(ClassGroup = Movement, BlueprintType)
class ENGINE_API UCharacterMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = "Character Movement (General Settings)", EditAnywhere, BlueprintReadWrite)
	float GravityScale = 1.0f;

	UPROPERTY(Category = "Character Movement: Walking", EditAnywhere, BlueprintReadWrite)
	float MaxStepHeight = 45.0f;

	UPROPERTY(
		Category = "Character Movement: Jumping / Falling", EditAnywhere, BlueprintReadWrite, meta = (DisplayName = "Jump Z Velocity"))
	float JumpZVelocity = 420.0f;

	UPROPERTY(Category = "Character Movement: MovementMode", BlueprintReadOnly)
	TEnumAsByte<EMovementMode> MovementMode = MOVE_None;

	UPROPERTY(Category = "Character Movement (General Settings)", EditAnywhere, BlueprintReadWrite)
	TEnumAsByte<EMovementMode> DefaultLandMovementMode = MOVE_Walking;

	UPROPERTY(Category = "Character Movement: Walking", EditAnywhere, BlueprintReadWrite)
	float GroundFriction = 8.0f;

	UPROPERTY(Category = "Character Movement: Walking", EditAnywhere, BlueprintReadWrite)
	float MaxWalkSpeed = 600.0f;

	UPROPERTY(Category = "Character Movement: Walking", EditAnywhere, BlueprintReadWrite)
	float MaxWalkSpeedCrouched = 300.0f;

	UPROPERTY(Category = "Character Movement: Swimming", EditAnywhere, BlueprintReadWrite)
	float MaxSwimSpeed = 300.0f;

	UPROPERTY(Category = "Character Movement: Flying", EditAnywhere, BlueprintReadWrite)
	float MaxFlySpeed = 600.0f;

	UPROPERTY(Category = "Character Movement (General Settings)", EditAnywhere, BlueprintReadWrite)
	float MaxAcceleration = 2048.0f;

	UPROPERTY(Category = "Character Movement: Walking", EditAnywhere, BlueprintReadWrite)
	float BrakingDecelerationWalking = 2048.0f;

	UPROPERTY(Category = "Character Movement: Jumping / Falling", EditAnywhere, BlueprintReadWrite)
	float AirControl = 0.05f;

	/** In degrees per second; a negative one is instant. */
	UPROPERTY(Category = "Character Movement (Rotation Settings)", EditAnywhere, BlueprintReadWrite)
	FRotator RotationRate = FRotator(0.0, 360.0, 0.0);

	UPROPERTY(Category = "Character Movement (Rotation Settings)", EditAnywhere, BlueprintReadWrite)
	uint8 bOrientRotationToMovement : 1 = 0;

	UPROPERTY(Category = "Character Movement (Rotation Settings)", EditAnywhere, BlueprintReadWrite)
	uint8 bUseControllerDesiredRotation : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	virtual void SetMovementMode(EMovementMode NewMovementMode, uint8 NewCustomMode = 0) { MovementMode = NewMovementMode; }
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	virtual void DisableMovement() { MovementMode = MOVE_None; }
	/** That of the present mode. */
	float GetMaxSpeed() const override;
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	virtual bool IsFalling() const { return MovementMode == MOVE_Falling; }
};
