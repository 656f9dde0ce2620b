#pragma once

#include "Components/SceneComponent.h"
#include "SpringArmComponent.generated.h"

/** Keeps what is attached to it at a distance behind its parent. */
UCLASS(ClassGroup = Camera, meta = (BlueprintSpawnableComponent), hideCategories = (Mobility))
class ENGINE_API USpringArmComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	/** In centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Camera)
	float TargetArmLength = 300.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Camera)
	FVector SocketOffset = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Camera)
	FVector TargetOffset = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraCollision)
	float ProbeSize = 12.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraCollision)
	uint8 bDoCollisionTest : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraSettings)
	uint8 bUsePawnControlRotation : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraSettings)
	uint8 bInheritPitch : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraSettings)
	uint8 bInheritYaw : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = CameraSettings)
	uint8 bInheritRoll : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Lag)
	uint8 bEnableCameraLag : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Lag)
	float CameraLagSpeed = 10.0f;
};
