#pragma once

#include "GameFramework/MovementComponent.h"
#include "ProjectileMovementComponent.generated.h"

/** Moves an actor as a projectile. */
UCLASS(ClassGroup = Movement, meta = (BlueprintSpawnableComponent), ShowCategories = (Velocity))
class ENGINE_API UProjectileMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	/** In centimetres per second; 0 leaves Velocity as it is. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Projectile)
	float InitialSpeed = 0.0f;

	/** 0 for no limit. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Projectile)
	float MaxSpeed = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Projectile)
	uint8 bRotationFollowsVelocity : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = ProjectileBounces)
	uint8 bShouldBounce : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = ProjectileBounces)
	float Bounciness = 0.6f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Projectile)
	float ProjectileGravityScale = 1.0f;

	float GetMaxSpeed() const override { return MaxSpeed; }
};
