#pragma once

#include "Components/SceneComponent.h"
#include "Engine/CollisionProfile.h"
#include "PrimitiveComponent.generated.h"

class UMaterialInterface;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(FComponentHitSignature, UPrimitiveComponent*, HitComponent, AActor*, OtherActor,
	UPrimitiveComponent*, OtherComp, FVector, NormalImpulse, const FHitResult&, Hit);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(FComponentBeginOverlapSignature, UPrimitiveComponent*, OverlappedComponent, AActor*,
	OtherActor, UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex, bool, bFromSweep, const FHitResult&, SweepResult);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(FComponentEndOverlapSignature, UPrimitiveComponent*, OverlappedComponent, AActor*, OtherActor,
	UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex);

/** A scene component with a shape: one that is seen or collides. */
UCLASS(Abstract, HideCategories = (Mobility, VirtualTexture), ShowCategories = (PhysicsVolume))
class ENGINE_API UPrimitiveComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPrimitiveComponent();

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Collision, meta = (ShowOnlyInnerProperties, SkipUCSModifiedProperties))
	FBodyInstance BodyInstance;

	UPROPERTY(EditAnywhere, AdvancedDisplay, BlueprintReadOnly, Category = LOD)
	float MinDrawDistance = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = LOD, meta = (DisplayName = "Desired Max Draw Distance"))
	float LDMaxDrawDistance = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Lighting)
	uint8 CastShadow : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bOwnerNoSee : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bOnlyOwnerSee : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Collision)
	uint8 bMultiBodyOverlap : 1 = 0;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentHitSignature OnComponentHit;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentBeginOverlapSignature OnComponentBeginOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentEndOverlapSignature OnComponentEndOverlap;

	UFUNCTION(BlueprintCallable, Category = "Collision")
	virtual void SetCollisionEnabled(ECollisionEnabled::Type NewType) { BodyInstance.CollisionEnabled = NewType; }
	UFUNCTION(BlueprintCallable, Category = "Collision")
	virtual void SetCollisionProfileName(FName InCollisionProfileName, bool bUpdateOverlaps = true)
	{
		BodyInstance.CollisionProfileName = InCollisionProfileName;
	}
	UFUNCTION(BlueprintPure, Category = "Collision")
	FName GetCollisionProfileName() const { return BodyInstance.CollisionProfileName; }
	UFUNCTION(BlueprintCallable, Category = "Physics")
	virtual void SetSimulatePhysics(bool bSimulate) { BodyInstance.bSimulatePhysics = bSimulate; }
	UFUNCTION(BlueprintCallable, Category = "Physics")
	virtual bool IsSimulatingPhysics(FName BoneName = NAME_None) const { return BodyInstance.bSimulatePhysics; }
	UFUNCTION(BlueprintCallable, Category = "Physics")
	virtual void SetEnableGravity(bool bGravityEnabled) { BodyInstance.bEnableGravity = bGravityEnabled; }
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCastShadow(bool NewCastShadow) { CastShadow = NewCastShadow; }
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetGenerateOverlapEvents(bool bInGenerateOverlapEvents) { bGenerateOverlapEvents = bInGenerateOverlapEvents; }
	UFUNCTION(BlueprintCallable, Category = "Collision")
	bool GetGenerateOverlapEvents() const { return bGenerateOverlapEvents; }

private:
	UPROPERTY(EditAnywhere, Category = Collision, BlueprintReadWrite, meta = (AllowPrivateAccess = "true"))
	uint8 bGenerateOverlapEvents : 1 = 0;
};
