#pragma once

#include "UObject/UObjectGlobals.h"
#include "DamageType.generated.h"

/** A kind of damage, told apart by class. */
UCLASS(Blueprintable, BlueprintType, Const)
class ENGINE_API UDamageType : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = DamageType)
	uint8 bCausedByWorld : 1 = 0;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = RigidBody)
	float DamageImpulse = 800.0f;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = Destruction)
	float DestructibleImpulse = 800.0f;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = RigidBody)
	float DamageFalloff = 1.0f;
};
