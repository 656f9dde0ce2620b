#pragma once

#include "Components/ActorComponent.h"
#include "MovementComponent.generated.h"

class USceneComponent;

/** Moves a scene component of its actor. */
UCLASS(ClassGroup = Movement, abstract, BlueprintType)
class ENGINE_API UMovementComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UMovementComponent();

	/** The actor's root, unless it is set. */
	UPROPERTY(BlueprintReadOnly, Transient, DuplicateTransient, Category = MovementComponent)
	TObjectPtr<USceneComponent> UpdatedComponent;

	/** In centimetres per second. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Velocity)
	FVector Velocity = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = MovementComponent)
	uint8 bUpdateOnlyIfRendered : 1 = 0;

	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	virtual float GetMaxSpeed() const { return 0.0f; }
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	virtual void StopMovementImmediately() { Velocity = FVector::ZeroVector; }
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	virtual void SetUpdatedComponent(USceneComponent* NewUpdatedComponent) { UpdatedComponent = NewUpdatedComponent; }
};
