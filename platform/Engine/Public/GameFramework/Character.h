#pragma once

#include "GameFramework/Pawn.h"
#include "Character.generated.h"

class UArrowComponent;
class UCapsuleComponent;
class UCharacterMovementComponent;
class USkeletalMeshComponent;

/** A pawn with a body that stands upright and can walk and jump. */
UCLASS(config = Game, BlueprintType, meta = (ShortTooltip = "A character is a type of Pawn that includes the ability to walk around."))
class ENGINE_API ACharacter : public APawn
{
	GENERATED_BODY()

public:
	ACharacter();

	static const FName MeshComponentName;
	static const FName CapsuleComponentName;
	static const FName CharacterMovementComponentName;

	USkeletalMeshComponent* GetMesh() const { return Mesh; }
	UCapsuleComponent* GetCapsuleComponent() const { return CapsuleComponent; }
	UCharacterMovementComponent* GetCharacterMovement() const { return CharacterMovement; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Camera)
	float CrouchedEyeHeight = 32.0f;

	UPROPERTY(BlueprintReadOnly, ReplicatedUsing = OnRep_IsCrouched, Category = Character)
	uint8 bIsCrouched : 1 = 0;

	UFUNCTION()
	void OnRep_IsCrouched() {}

	/** In seconds that the jump key has an effect. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Replicated, Category = Character)
	float JumpMaxHoldTime = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Replicated, Category = Character)
	int32 JumpMaxCount = 1;

	UPROPERTY(BlueprintReadOnly, Category = Character)
	uint8 bPressedJump : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = Character)
	virtual void Jump() { bPressedJump = true; }
	UFUNCTION(BlueprintCallable, Category = Character)
	virtual void StopJumping() { bPressedJump = false; }

	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "OnLanded"), Category = Character)
	void OnLanded(const FHitResult& Hit);
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "OnJumped"), Category = Character)
	void OnJumped();

private:
	UPROPERTY(Category = Character, VisibleAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USkeletalMeshComponent> Mesh;

	UPROPERTY(Category = Character, VisibleAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCharacterMovementComponent> CharacterMovement;

	UPROPERTY(Category = Character, VisibleAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCapsuleComponent> CapsuleComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};
