#include "Kismet/GameplayStatics.h"

#include "GameFramework/PlayerController.h"
#include "Kismet/WorldContext.h"

namespace
{
template <typename PredicateType>
TArray<AActor*> FindActors(const UObject* WorldContextObject, PredicateType Fits)
{
	TArray<AActor*> Found;
	const UWorld* const World = GetWorldFromContextObject(WorldContextObject);
	if (World && World->PersistentLevel)
	{
		for (AActor* const Actor : World->PersistentLevel->Actors)
		{
			if (IsValid(Actor) && Fits(Actor))
			{
				Found.Add(Actor);
			}
		}
	}
	return Found;
}

TArray<AActor*> FindActorsOfClass(const UObject* WorldContextObject, const UClass* Class)
{
	return FindActors(WorldContextObject, [Class](const AActor* Actor) { return Class && Actor->IsA(Class); });
}
}

APlayerController* UGameplayStatics::GetPlayerController(const UObject* WorldContextObject, int32 PlayerIndex)
{
	const TArray<AActor*> Controllers = FindActorsOfClass(WorldContextObject, APlayerController::StaticClass());
	return Controllers.IsValidIndex(PlayerIndex) ? Cast<APlayerController>(Controllers[PlayerIndex]) : nullptr;
}

APawn* UGameplayStatics::GetPlayerPawn(const UObject* WorldContextObject, int32 PlayerIndex)
{
	const APlayerController* const Controller = GetPlayerController(WorldContextObject, PlayerIndex);
	return Controller ? Controller->GetPawn() : nullptr;
}

AActor* UGameplayStatics::GetActorOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass)
{
	const TArray<AActor*> Actors = FindActorsOfClass(WorldContextObject, ActorClass);
	return Actors.IsEmpty() ? nullptr : Actors[0];
}

void UGameplayStatics::GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors)
{
	OutActors = FindActorsOfClass(WorldContextObject, ActorClass);
}

void UGameplayStatics::GetAllActorsWithTag(const UObject* WorldContextObject, FName Tag, TArray<AActor*>& OutActors)
{
	OutActors = FindActors(WorldContextObject, [Tag](const AActor* Actor) { return Actor->ActorHasTag(Tag); });
}

AActor* UGameplayStatics::FindNearestActor(FVector Origin, const TArray<AActor*>& ActorsToCheck, float& Distance)
{
	AActor* Nearest = nullptr;
	double Best = 0.0;
	for (AActor* const Actor : ActorsToCheck)
	{
		const double Here = Actor ? FVector::Dist(Origin, Actor->GetActorLocation()) : 0.0;
		if (Actor && (!Nearest || Here < Best))
		{
			Nearest = Actor;
			Best = Here;
		}
	}
	Distance = static_cast<float>(Best);
	return Nearest;
}

FVector UGameplayStatics::GetActorArrayAverageLocation(const TArray<AActor*>& Actors)
{
	FVector Sum = FVector::ZeroVector;
	int32 Count = 0;
	for (const AActor* const Actor : Actors)
	{
		Sum = Sum + (Actor ? Actor->GetActorLocation() : FVector::ZeroVector);
		Count += Actor != nullptr;
	}
	return Count > 0 ? Sum * (1.0 / Count) : Sum;
}

FString UGameplayStatics::GetCurrentLevelName(const UObject* WorldContextObject, bool)
{
	// Nothing here puts a prefix before a world's name.
	const UWorld* const World = GetWorldFromContextObject(WorldContextObject);
	return World ? World->GetName() : FString();
}

double UGameplayStatics::GetTimeSeconds(const UObject* WorldContextObject)
{
	const UWorld* const World = GetWorldFromContextObject(WorldContextObject);
	return World ? World->GetTimeSeconds() : 0.0;
}

UClass* UGameplayStatics::GetObjectClass(const UObject* Object)
{
	return Object ? Object->GetClass() : nullptr;
}

FString UGameplayStatics::GetPlatformName()
{
	return TEXT("Linux");
}
