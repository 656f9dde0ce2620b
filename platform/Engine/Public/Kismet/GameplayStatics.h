#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "Templates/SubclassOf.h"
#include "GameplayStatics.generated.h"

class AActor;
class APawn;
class APlayerController;

/** Functions of the game for Blueprints. They see the actors of the world that the context object is in. */
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Null when there are fewer. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APlayerController* GetPlayerController(const UObject* WorldContextObject, int32 PlayerIndex);
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APawn* GetPlayerPawn(const UObject* WorldContextObject, int32 PlayerIndex);
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass"))
	static AActor* GetActorOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass);
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass", DynamicOutputParam = "OutActors"))
	static void GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject"))
	static void GetAllActorsWithTag(const UObject* WorldContextObject, FName Tag, TArray<AActor*>& OutActors);
	/** Null, and a distance of 0, when there are no actors. */
	UFUNCTION(BlueprintPure, Category = "Actor")
	static AActor* FindNearestActor(FVector Origin, const TArray<AActor*>& ActorsToCheck, float& Distance);
	UFUNCTION(BlueprintPure, Category = "Actor")
	static FVector GetActorArrayAverageLocation(const TArray<AActor*>& Actors);
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static FString GetCurrentLevelName(const UObject* WorldContextObject, bool bRemovePrefixString = true);
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetTimeSeconds(const UObject* WorldContextObject);
	UFUNCTION(BlueprintPure, Category = "Class", meta = (DisplayName = "Get Object Class"))
	static UClass* GetObjectClass(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Game")
	static FString GetPlatformName();
};
