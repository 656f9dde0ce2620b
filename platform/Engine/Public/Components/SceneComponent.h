#pragma once

#include "Components/ActorComponent.h"
#include "SceneComponent.generated.h"

/** A component with a place: a transform relative to what it is attached to. */
UCLASS(ClassGroup = (Utility, Common), BlueprintType, hideCategories = (Trigger, PhysicsVolume), meta = (BlueprintSpawnableComponent))
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	USceneComponent();

	USceneComponent* GetAttachParent() const { return AttachParent; }
	FName GetAttachSocketName() const { return AttachSocketName; }
	const TArray<TObjectPtr<USceneComponent>>& GetAttachChildren() const { return AttachChildren; }
	/** For constructors: where the component will be attached. */
	void SetupAttachment(USceneComponent* InParent, FName InSocketName = NAME_None);
	/** @return false when the parent is this component or below it */
	bool AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules, FName InSocketName = NAME_None);
	/** The component keeps its relative transform. */
	void DetachFromParent();

	FVector GetRelativeLocation() const { return RelativeLocation; }
	FRotator GetRelativeRotation() const { return RelativeRotation; }
	FVector GetRelativeScale3D() const { return RelativeScale3D; }
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FTransform GetRelativeTransform() const { return FTransform(RelativeRotation, RelativeLocation, RelativeScale3D); }
	/** In the world: through all components that this one is attached to. */
	FTransform GetComponentTransform() const;
	FVector GetComponentLocation() const { return GetComponentTransform().GetLocation(); }
	FRotator GetComponentRotation() const { return GetComponentTransform().Rotator(); }
	FVector GetComponentScale() const { return GetComponentTransform().GetScale3D(); }

	// Nothing is swept here: the hit result, where one is given, becomes one without a hit.

	void SetRelativeLocation(
		FVector NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetRelativeRotation(
		FRotator NewRotation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetRelativeRotation(const FQuat& NewRotation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr,
		ETeleportType Teleport = ETeleportType::None);
	void SetRelativeLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep = false,
		FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetRelativeLocationAndRotation(FVector NewLocation, const FQuat& NewRotation, bool bSweep = false,
		FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetRelativeScale3D(FVector NewScale3D);
	void SetRelativeTransform(const FTransform& NewTransform, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr,
		ETeleportType Teleport = ETeleportType::None);
	void SetWorldTransform(const FTransform& NewTransform, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr,
		ETeleportType Teleport = ETeleportType::None);

	UFUNCTION(BlueprintCallable, Category = "Components|SceneComponent")
	virtual void SetMobility(EComponentMobility::Type NewMobility) { Mobility = NewMobility; }
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	bool IsVisible() const { return bVisible; }
	/** @param bPropagateToChildren those attached to this one, too */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetVisibility(bool bNewVisibility, bool bPropagateToChildren = false);
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetHiddenInGame(bool NewHidden, bool bPropagateToChildren = false);

	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Location"))
	FVector K2_GetComponentLocation() const { return GetComponentLocation(); }
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Rotation"))
	FRotator K2_GetComponentRotation() const { return GetComponentRotation(); }
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Location"))
	void K2_SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Rotation"))
	void K2_SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);
	UFUNCTION(BlueprintPure, Category = "Transformation")
	FVector GetForwardVector() const;

private:
	UPROPERTY()
	TObjectPtr<USceneComponent> AttachParent;

	UPROPERTY()
	FName AttachSocketName;

	UPROPERTY(Transient)
	TArray<TObjectPtr<USceneComponent>> AttachChildren;

	/** Relative to the parent, in centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, ReplicatedUsing = OnRep_Transform, Category = Transform,
		meta = (AllowPrivateAccess = "true", LinearDeltaSensitivity = "1", Delta = "1.0"))
	FVector RelativeLocation = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, ReplicatedUsing = OnRep_Transform, Category = Transform,
		meta = (AllowPrivateAccess = "true", LinearDeltaSensitivity = "1", Delta = "1.0"))
	FRotator RelativeRotation = FRotator::ZeroRotator;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, ReplicatedUsing = OnRep_Transform, Category = Transform,
		meta = (AllowPrivateAccess = "true", LinearDeltaSensitivity = "1", Delta = "0.0025"))
	FVector RelativeScale3D = FVector::OneVector;

	UFUNCTION()
	void OnRep_Transform() {}

	UPROPERTY(
		EditAnywhere, BlueprintReadOnly, ReplicatedUsing = OnRep_Visibility, Category = Rendering, meta = (AllowPrivateAccess = "true"))
	uint8 bVisible : 1 = 1;

	UFUNCTION()
	void OnRep_Visibility(bool OldValue) {}

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bHiddenInGame : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = Transform)
	uint8 bAbsoluteLocation : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = Transform)
	uint8 bAbsoluteRotation : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = Transform)
	uint8 bAbsoluteScale : 1 = 0;

	/** Whether it may move during the game. */
	UPROPERTY(Category = Mobility, EditAnywhere, BlueprintReadOnly)
	TEnumAsByte<EComponentMobility::Type> Mobility = EComponentMobility::Movable;
};
