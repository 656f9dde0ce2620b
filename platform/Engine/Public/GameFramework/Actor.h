#pragma once

#include "Components/ActorComponent.h"
#include "Templates/SubclassOf.h"
#include "Actor.generated.h"

class AActor;
class AController;
class APawn;
class UInputComponent;
class USceneComponent;
class UWorld;

UENUM(BlueprintType)
enum ENetDormancy : int
{
	DORM_Never,
	DORM_Awake,
	DORM_DormantAll,
	DORM_DormantPartial,
	DORM_Initial,
	DORM_MAX,
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(FTakeAnyDamageSignature, AActor*, DamagedActor, float, Damage, const class UDamageType*,
	DamageType, AController*, InstigatedBy, AActor*, DamageCauser);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorBeginOverlapSignature, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorEndOverlapSignature, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FActorDestroyedSignature, AActor*, DestroyedActor);

/** Something that can be in a level. What it looks like and does is its components' and its Blueprint's. */
UCLASS(BlueprintType, Blueprintable, config = Engine,
	meta = (ShortTooltip = "An Actor is an object that can be placed or spawned in the world."))
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditDefaultsOnly, Category = Tick)
	FActorTickFunction PrimaryActorTick;

	UPROPERTY(Interp, EditAnywhere, Category = Rendering, BlueprintReadOnly, Replicated,
		meta = (AllowPrivateAccess = "true", DisplayName = "Actor Hidden In Game"))
	uint8 bHidden : 1 = 0;

	UPROPERTY()
	uint8 bActorEnableCollision : 1 = 1;

	/** Over the network, for a client that has no other word. */
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = Replication)
	uint8 bNetLoadOnClient : 1 = 1;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadOnly)
	uint8 bAlwaysRelevant : 1 = 0;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadOnly)
	uint8 bOnlyRelevantToOwner : 1 = 0;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadOnly)
	uint8 bNetUseOwnerRelevancy : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, SaveGame, Replicated, Category = Actor)
	uint8 bCanBeDamaged : 1 = 1;

	UPROPERTY(Category = Collision, EditAnywhere, BlueprintReadWrite)
	uint8 bGenerateOverlapEventsDuringLevelStreaming : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Actor)
	uint8 bBlockInput : 1 = 0;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = Actor)
	uint8 bFindCameraComponentWhenViewTarget : 1 = 1;

	/** In seconds, before the actor destroys itself; 0 for never. */
	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = Actor)
	float InitialLifeSpan = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Actor)
	float CustomTimeDilation = 1.0f;

	UPROPERTY(EditAnywhere, Category = Input)
	TEnumAsByte<EAutoReceiveInput::Type> AutoReceiveInput = EAutoReceiveInput::Disabled;

	UPROPERTY(EditAnywhere, Category = Input)
	int32 InputPriority = 0;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadWrite)
	float NetCullDistanceSquared = 225000000.0f;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadWrite)
	float NetUpdateFrequency = 100.0f;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadWrite)
	float MinNetUpdateFrequency = 2.0f;

	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadWrite)
	float NetPriority = 1.0f;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = Replication)
	TEnumAsByte<ENetDormancy> NetDormancy = DORM_Awake;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Actor)
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingMethod = ESpawnActorCollisionHandlingMethod::AlwaysSpawn;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Actor)
	TArray<FName> Tags;

	UPROPERTY(BlueprintAssignable, Category = "Game|Damage")
	FTakeAnyDamageSignature OnTakeAnyDamage;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorBeginOverlapSignature OnActorBeginOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorEndOverlapSignature OnActorEndOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Game")
	FActorDestroyedSignature OnDestroyed;

	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "BeginPlay"))
	void ReceiveBeginPlay();
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "ActorBeginOverlap"), Category = "Collision")
	void ReceiveActorBeginOverlap(AActor* OtherActor);
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "ActorEndOverlap"), Category = "Collision")
	void ReceiveActorEndOverlap(AActor* OtherActor);
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Destroyed"))
	void ReceiveDestroyed();
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "AnyDamage"), Category = "Game|Damage")
	void ReceiveAnyDamage(float Damage, const class UDamageType* DamageType, AController* InstigatedBy, AActor* DamageCauser);
	UFUNCTION(BlueprintImplementableEvent, meta = (BlueprintInternalUseOnly = "true", DisplayName = "Construction Script"))
	void UserConstructionScript();

	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FTransform GetActorTransform() const;
	UFUNCTION(BlueprintCallable, meta = (DisplayName = "Get Actor Location", Keywords = "position"), Category = "Transformation")
	FVector K2_GetActorLocation() const { return GetActorLocation(); }
	UFUNCTION(BlueprintCallable, meta = (DisplayName = "Get Actor Rotation"), Category = "Transformation")
	FRotator K2_GetActorRotation() const { return GetActorRotation(); }
	UFUNCTION(BlueprintCallable, meta = (DisplayName = "Set Actor Location", Keywords = "position"), Category = "Transformation")
	bool K2_SetActorLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);
	UFUNCTION(BlueprintCallable, meta = (DisplayName = "Set Actor Rotation"), Category = "Transformation")
	bool K2_SetActorRotation(FRotator NewRotation, bool bTeleportPhysics);
	UFUNCTION(BlueprintCallable, meta = (DisplayName = "Get Actor Scale 3D"), Category = "Transformation")
	FVector GetActorScale3D() const;
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetActorScale3D(FVector NewScale3D);
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorForwardVector() const;
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetDistanceTo(const AActor* OtherActor) const;
	FVector GetActorLocation() const;
	FRotator GetActorRotation() const;
	/** @return false for an actor without a root component */
	bool SetActorLocation(const FVector& NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr,
		ETeleportType Teleport = ETeleportType::None);
	bool SetActorRotation(FRotator NewRotation, ETeleportType Teleport = ETeleportType::None);

	UFUNCTION(
		BlueprintCallable, Category = "Rendering", meta = (DisplayName = "Set Actor Hidden In Game", Keywords = "Visible Hidden Show Hide"))
	virtual void SetActorHiddenInGame(bool bNewHidden) { bHidden = bNewHidden; }
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetActorEnableCollision(bool bNewActorEnableCollision) { bActorEnableCollision = bNewActorEnableCollision; }
	UFUNCTION(BlueprintPure, Category = "Collision")
	bool GetActorEnableCollision() const { return bActorEnableCollision; }
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetActorTickEnabled(bool bEnabled);
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetActorTickInterval(float TickInterval) { PrimaryActorTick.TickInterval = TickInterval; }
	UFUNCTION(BlueprintCallable, Category = "Actor")
	bool ActorHasTag(FName Tag) const;
	UFUNCTION(BlueprintCallable, Category = "Actor")
	AActor* GetOwner() const { return Owner; }
	UFUNCTION(BlueprintCallable, Category = "Actor")
	virtual void SetOwner(AActor* NewOwner) { Owner = NewOwner; }
	UFUNCTION(BlueprintCallable, Category = "Game")
	APawn* GetInstigator() const { return Instigator; }
	UFUNCTION(BlueprintCallable, Category = "Networking")
	bool HasAuthority() const { return true; }
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (ComponentClass = "/Script/Engine.ActorComponent"))
	UActorComponent* GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const;
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (DisplayName = "Get Components by Class"))
	TArray<UActorComponent*> K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const;
	/** Takes the actor out of its level; it is garbage then. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (Keywords = "Delete", DisplayName = "Destroy Actor"))
	virtual void K2_DestroyActor();

	USceneComponent* GetRootComponent() const { return RootComponent; }
	UFUNCTION(BlueprintCallable, Category = "Utilities|Transformation", meta = (DisplayName = "Get Root Component"))
	USceneComponent* K2_GetRootComponent() const { return RootComponent; }
	/** @return false when the component is another actor's */
	bool SetRootComponent(USceneComponent* NewRootComponent);
	/** Null for an actor outside of any level. */
	UWorld* GetWorld() const;

	/** Those of the class and of classes that derive from it, in the order in which they came. Child actors' are not among them. */
	void GetComponents(
		TSubclassOf<UActorComponent> ComponentClass, TArray<UActorComponent*>& OutComponents, bool bIncludeFromChildActors = false) const;
	template <typename T>
	void GetComponents(TArray<T*>& OutComponents, bool bIncludeFromChildActors = false) const
	{
		OutComponents.Reset();
		for (UActorComponent* const Component : GetComponents())
		{
			if (T* const Typed = Cast<T>(Component))
			{
				OutComponents.Add(Typed);
			}
		}
	}
	/** All of them, but for those that have been destroyed. */
	TArray<UActorComponent*> GetComponents() const;
	template <typename T>
	T* FindComponentByClass() const
	{
		return Cast<T>(GetComponentByClass(T::StaticClass()));
	}
	/** Called by components when they come and go. */
	void AddOwnedComponent(UActorComponent* Component);
	void RemoveOwnedComponent(UActorComponent* Component);

protected:
	UPROPERTY(BlueprintGetter = K2_GetRootComponent, Category = "Utilities|Transformation")
	TObjectPtr<USceneComponent> RootComponent;

private:
	UPROPERTY()
	TObjectPtr<AActor> Owner;

	UPROPERTY(BlueprintReadWrite, ReplicatedUsing = OnRep_Instigator, Category = Actor,
		meta = (ExposeOnSpawn = "true", AllowPrivateAccess = "true"))
	TObjectPtr<APawn> Instigator;

	UFUNCTION()
	void OnRep_Instigator() {}

	/** They have this actor as an outer, which is what keeps it, and not the other way round. */
	TArray<UActorComponent*> OwnedComponents;

protected:
	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadOnly)
	uint8 bReplicates : 1 = 0;
};
