#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/ScriptDelegates.h"
#include "EngineTypes.generated.h"

class AActor;
class UPrimitiveComponent;

/** How the coming of an actor into a level, or its going, is told. */
UENUM(BlueprintType)
namespace EEndPlayReason
{
enum Type : int
{
	Destroyed,
	LevelTransition,
	EndPlayInEditor,
	RemovedFromWorld,
	Quit,
};
}

UENUM(BlueprintType)
namespace EComponentMobility
{
enum Type : int
{
	Static,
	Stationary,
	Movable,
};
}

UENUM(BlueprintType)
namespace ECollisionEnabled
{
enum Type : int
{
	NoCollision,
	QueryOnly,
	PhysicsOnly,
	QueryAndPhysics,
	ProbeOnly,
	QueryAndProbe,
};
}

UENUM(BlueprintType)
enum ECollisionChannel : int
{
	ECC_WorldStatic,
	ECC_WorldDynamic,
	ECC_Pawn,
	ECC_Visibility,
	ECC_Camera,
	ECC_PhysicsBody,
	ECC_Vehicle,
	ECC_Destructible,
	ECC_MAX,
};

UENUM(BlueprintType)
enum class ETeleportType : uint8
{
	None,
	TeleportPhysics,
	ResetPhysics,
};

UENUM(BlueprintType)
enum class ESpawnActorCollisionHandlingMethod : uint8
{
	Undefined,
	AlwaysSpawn,
	AdjustIfPossibleButAlwaysSpawn,
	AdjustIfPossibleButDontSpawnIfColliding,
	DontSpawnIfColliding,
};

UENUM(BlueprintType)
namespace EAutoReceiveInput
{
enum Type : int
{
	Disabled,
	Player0,
	Player1,
	Player2,
	Player3,
};
}

UENUM(BlueprintType)
enum class EAttachmentRule : uint8
{
	KeepRelative,
	KeepWorld,
	SnapToTarget,
};

/** Which parts of its transform a component keeps when it is attached. */
struct FAttachmentTransformRules
{
	FAttachmentTransformRules(EAttachmentRule Rule, bool bInWeldSimulatedBodies)
		: LocationRule(Rule)
		, RotationRule(Rule)
		, ScaleRule(Rule)
		, bWeldSimulatedBodies(bInWeldSimulatedBodies)
	{
	}

	EAttachmentRule LocationRule;
	EAttachmentRule RotationRule;
	EAttachmentRule ScaleRule;
	bool bWeldSimulatedBodies;
};

/** When and how often something is called each frame. */
USTRUCT()
struct ENGINE_API FTickFunction
{
	GENERATED_BODY()

	/** Whether it may be called at all; set by classes. */
	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	uint8 bCanEverTick : 1 = 0;

	UPROPERTY(EditDefaultsOnly, Category = "Tick")
	uint8 bStartWithTickEnabled : 1 = 1;

	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	uint8 bTickEvenWhenPaused : 1 = 0;

	/** In seconds; 0 for each frame. */
	UPROPERTY(EditDefaultsOnly, Category = "Tick", meta = (DisplayName = "Tick Interval (secs)"))
	float TickInterval = 0.0f;
};

USTRUCT()
struct ENGINE_API FActorTickFunction : public FTickFunction
{
	GENERATED_BODY()
};

USTRUCT()
struct ENGINE_API FActorComponentTickFunction : public FTickFunction
{
	GENERATED_BODY()
};

/** Where a sweep or a trace hit something. */
USTRUCT(BlueprintType)
struct ENGINE_API FHitResult
{
	GENERATED_BODY()

	/** How far along the trace, from 0 to 1. */
	UPROPERTY()
	float Time = 1.0f;

	UPROPERTY()
	float Distance = 0.0f;

	UPROPERTY()
	FVector Location = FVector::ZeroVector;

	UPROPERTY()
	FVector ImpactPoint = FVector::ZeroVector;

	UPROPERTY()
	FVector Normal = FVector::ZeroVector;

	UPROPERTY()
	FVector ImpactNormal = FVector::ZeroVector;

	UPROPERTY()
	FVector TraceStart = FVector::ZeroVector;

	UPROPERTY()
	FVector TraceEnd = FVector::ZeroVector;

	UPROPERTY()
	FName BoneName;

	UPROPERTY()
	uint8 bBlockingHit : 1 = 0;

	UPROPERTY()
	uint8 bStartPenetrating : 1 = 0;
};
