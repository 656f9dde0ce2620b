// An actor and its components.

#include "Components/SceneComponent.h"
#include "GameFramework/Actor.h"

void AActor::AddOwnedComponent(UActorComponent* Component)
{
	OwnedComponents.AddUnique(Component);
}

void AActor::RemoveOwnedComponent(UActorComponent* Component)
{
	OwnedComponents.RemoveSingle(Component);
}

TArray<UActorComponent*> AActor::GetComponents() const
{
	return OwnedComponents.FilterByPredicate([](const UActorComponent* Component) { return IsValid(Component); });
}

void AActor::GetComponents(TSubclassOf<UActorComponent> ComponentClass, TArray<UActorComponent*>& OutComponents, bool) const
{
	OutComponents = K2_GetComponentsByClass(ComponentClass);
}

TArray<UActorComponent*> AActor::K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const
{
	const UClass* const Class = ComponentClass ? ComponentClass.Get() : UActorComponent::StaticClass();
	return GetComponents().FilterByPredicate([Class](const UActorComponent* Component) { return Component->IsA(Class); });
}

UActorComponent* AActor::GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const
{
	const TArray<UActorComponent*> Found = K2_GetComponentsByClass(ComponentClass);
	return Found.IsEmpty() || !ComponentClass ? nullptr : Found[0];
}

bool AActor::SetRootComponent(USceneComponent* NewRootComponent)
{
	if (NewRootComponent && NewRootComponent->GetOwner() != this)
	{
		return false;
	}
	Modify();
	RootComponent = NewRootComponent;
	return true;
}
