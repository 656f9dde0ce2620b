#include "Engine/World.h"

#include "Components/SceneComponent.h"
#include "GameFramework/GameModeBase.h"

UWorld* UWorld::CreateWorld(UPackage* InPackage, FName WorldName)
{
	constexpr EObjectFlags Flags = RF_Public | RF_Standalone | RF_Transactional;
	UWorld* const World = NewObject<UWorld>(InPackage, WorldName, Flags);
	World->PersistentLevel = NewObject<ULevel>(World, FName(TEXT("PersistentLevel")), RF_Transactional);
	World->PersistentLevel->OwningWorld = World;
	World->SpawnActor(AWorldSettings::StaticClass(), nullptr, FName(TEXT("WorldSettings")));
	return World;
}

UWorld* UWorld::FindWorldInPackage(UPackage* Package)
{
	TArray<UObject*> Assets;
	GetObjectsWithOuter(Package, Assets, false);
	UObject* const* const World = Assets.FindByPredicate([](const UObject* Asset) { return Asset->IsA<UWorld>(); });
	return World ? static_cast<UWorld*>(*World) : nullptr;
}

AWorldSettings* UWorld::GetWorldSettings() const
{
	for (AActor* const Actor : PersistentLevel->Actors)
	{
		if (AWorldSettings* const Settings = Cast<AWorldSettings>(Actor))
		{
			return Settings;
		}
	}
	return nullptr;
}

AActor* UWorld::SpawnActor(UClass* Class, const FTransform* UserTransformPtr, FName Name)
{
	if (!Class || !Class->IsChildOf<AActor>() || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		return nullptr;
	}
	PersistentLevel->Modify();
	AActor* const Actor = NewObject<AActor>(PersistentLevel, Class, Name, RF_Transactional);
	PersistentLevel->Actors.Add(Actor);
	if (UserTransformPtr && Actor->GetRootComponent())
	{
		Actor->GetRootComponent()->SetWorldTransform(*UserTransformPtr);
	}
	return Actor;
}
