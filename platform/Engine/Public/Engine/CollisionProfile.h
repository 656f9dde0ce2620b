#pragma once

#include "Engine/EngineTypes.h"
#include "CollisionProfile.generated.h"

/** How a component collides and moves as a body. */
USTRUCT(BlueprintType)
struct ENGINE_API FBodyInstance
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Custom)
	FName CollisionProfileName;

	UPROPERTY(EditAnywhere, Category = Custom)
	TEnumAsByte<ECollisionEnabled::Type> CollisionEnabled = ECollisionEnabled::QueryAndPhysics;

	UPROPERTY(EditAnywhere, Category = Custom)
	TEnumAsByte<ECollisionChannel> ObjectType = ECC_WorldStatic;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Physics)
	uint8 bSimulatePhysics : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Physics)
	uint8 bEnableGravity : 1 = 1;

	/** In kilograms; counts with bOverrideMass. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Physics)
	float MassInKgOverride = 100.0f;

	UPROPERTY(EditAnywhere, Category = Physics)
	uint8 bOverrideMass : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Physics)
	float LinearDamping = 0.01f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Physics)
	float AngularDamping = 0.0f;
};
