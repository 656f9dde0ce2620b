#pragma once

#include "GameFramework/Pawn.h"
#include "Controller.generated.h"

/** Controls a pawn; has no body of its own. */
UCLASS(abstract, notplaceable, NotBlueprintable, HideCategories = (Collision, Rendering, Transformation))
class ENGINE_API AController : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform)
	uint8 bAttachToPawn : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = "Pawn", meta = (DisplayName = "Get Controlled Pawn"))
	APawn* K2_GetPawn() const { return Pawn; }
	APawn* GetPawn() const { return Pawn; }
	/** Whatever controlled the pawn lets go of it. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Pawn")
	void Possess(APawn* InPawn);
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Pawn")
	void UnPossess();
	UFUNCTION(BlueprintPure, Category = "Pawn")
	FRotator GetControlRotation() const { return ControlRotation; }
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	virtual void SetControlRotation(const FRotator& NewRotation) { ControlRotation = NewRotation; }
	UFUNCTION(BlueprintCallable, Category = "Input")
	virtual void SetIgnoreMoveInput(bool bNewMoveInput) { bIgnoreMoveInput = bNewMoveInput; }
	UFUNCTION(BlueprintCallable, Category = "Input")
	virtual bool IsMoveInputIgnored() const { return bIgnoreMoveInput; }

	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "On Possess"))
	void ReceivePossess(APawn* PossessedPawn);
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "On UnPossess"))
	void ReceiveUnPossess(APawn* UnpossessedPawn);

protected:
	UPROPERTY()
	FRotator ControlRotation = FRotator::ZeroRotator;

private:
	UPROPERTY(Transient)
	TObjectPtr<APawn> Pawn;

	bool bIgnoreMoveInput = false;
};
