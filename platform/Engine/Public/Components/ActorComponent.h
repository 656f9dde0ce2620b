#pragma once

#include "Engine/EngineTypes.h"
#include "UObject/UObjectGlobals.h"
#include "ActorComponent.generated.h"

class AActor;
class UWorld;

/** What brought a component into its actor. */
UENUM()
enum class EComponentCreationMethod : uint8
{
	Native,
	SimpleConstructionScript,
	UserConstructionScript,
	Instance,
};

/** A part of an actor: what it can do. Its outer is the actor, or a class for the template of a component. */
UCLASS(DefaultToInstanced, BlueprintType, Abstract, meta = (ShortTooltip = "A reusable component that can be added to any actor."))
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditDefaultsOnly, Category = "ComponentTick")
	FActorComponentTickFunction PrimaryComponentTick;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Tags)
	TArray<FName> ComponentTags;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Activation)
	uint8 bAutoActivate : 1 = 0;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = Variable)
	uint8 bEditableWhenInherited : 1 = 1;

	UPROPERTY()
	EComponentCreationMethod CreationMethod = EComponentCreationMethod::Native;

	/** Null for the template of a component. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Actor Owning Parent"))
	AActor* GetOwner() const;
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Activate(bool bReset = false);
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Deactivate();
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void SetActive(bool bNewActive, bool bReset = false);
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void ToggleActive();
	UFUNCTION(BlueprintCallable, Category = "Components|Activation", meta = (UnsafeDuringActorConstruction = "true"))
	bool IsActive() const { return bIsActive; }
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void SetAutoActivate(bool bNewAutoActivate);
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	virtual void SetComponentTickEnabled(bool bEnabled);
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	virtual bool IsComponentTickEnabled() const { return PrimaryComponentTick.bStartWithTickEnabled; }
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetComponentTickInterval(float TickInterval);
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	float GetComponentTickInterval() const { return PrimaryComponentTick.TickInterval; }
	UFUNCTION(BlueprintCallable, Category = "Components")
	bool ComponentHasTag(FName Tag) const;
	/** Takes the component out of its actor; it is garbage then. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Delete", HidePin = "Object", DefaultToSelf = "Object"))
	virtual void K2_DestroyComponent(UObject* Object);

	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "BeginPlay"))
	void ReceiveBeginPlay();
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);

	void PostInitProperties() override;
	void BeginDestroy() override;

private:
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "ComponentReplication", meta = (AllowPrivateAccess = "true"))
	uint8 bReplicates : 1 = 0;

	UPROPERTY(Transient)
	uint8 bIsActive : 1 = 0;
};
