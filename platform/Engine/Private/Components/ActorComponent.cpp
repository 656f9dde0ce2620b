#include "Components/ActorComponent.h"

#include "GameFramework/Actor.h"

AActor* UActorComponent::GetOwner() const
{
	return GetTypedOuter<AActor>();
}

void UActorComponent::PostInitProperties()
{
	Super::PostInitProperties();
	if (AActor* const Owner = GetOwner())
	{
		Owner->AddOwnedComponent(this);
	}
}

void UActorComponent::BeginDestroy()
{
	if (AActor* const Owner = GetOwner())
	{
		Owner->RemoveOwnedComponent(this);
	}
	Super::BeginDestroy();
}

void UActorComponent::Activate(bool)
{
	bIsActive = true;
}

void UActorComponent::Deactivate()
{
	bIsActive = false;
}

void UActorComponent::SetActive(bool bNewActive, bool bReset)
{
	bNewActive ? Activate(bReset) : Deactivate();
}

void UActorComponent::ToggleActive()
{
	SetActive(!bIsActive);
}

void UActorComponent::SetAutoActivate(bool bNewAutoActivate)
{
	bAutoActivate = bNewAutoActivate;
}

void UActorComponent::SetComponentTickEnabled(bool bEnabled)
{
	PrimaryComponentTick.bStartWithTickEnabled = bEnabled && PrimaryComponentTick.bCanEverTick;
}

void UActorComponent::SetComponentTickInterval(float TickInterval)
{
	PrimaryComponentTick.TickInterval = TickInterval;
}

bool UActorComponent::ComponentHasTag(FName Tag) const
{
	return !Tag.IsNone() && ComponentTags.Contains(Tag);
}

void UActorComponent::K2_DestroyComponent(UObject*)
{
	if (AActor* const Owner = GetOwner())
	{
		Owner->RemoveOwnedComponent(this);
	}
	MarkAsGarbage();
}
