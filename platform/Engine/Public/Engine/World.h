#pragma once

#include "GameFramework/Actor.h"
#include "World.generated.h"

class AGameModeBase;
class UWorld;

/** The actors of a world, which are its inner objects. */
UCLASS()
class ENGINE_API ULevel : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<TObjectPtr<AActor>> Actors;

	UPROPERTY(Transient)
	TObjectPtr<UWorld> OwningWorld;

	UWorld* GetWorld() const { return GetTypedOuter<UWorld>(); }
};

/** What holds for a whole world. */
UCLASS(config = game)
class ENGINE_API AWorldSettings : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = GameMode, meta = (DisplayName = "GameMode Override"))
	TSubclassOf<AGameModeBase> DefaultGameMode;

	/** Below this height actors fall out of the world. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = World)
	float KillZ = -1048575.0f;

	/** In centimetres per second squared. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Physics)
	float GlobalGravityZ = 0.0f;
};

/** A map: an asset in a .umap file. */
UCLASS()
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<ULevel> PersistentLevel;

	/** Nothing here runs a game, so it stands still. */
	double TimeSeconds = 0.0;

	/** A world in a package of its own, with its level and settings. */
	static UWorld* CreateWorld(UPackage* InPackage, FName WorldName);
	/** Null when the package is no map. */
	static UWorld* FindWorldInPackage(UPackage* Package);

	AWorldSettings* GetWorldSettings() const;
	/** Of the game in this world, in seconds. */
	double GetTimeSeconds() const { return TimeSeconds; }
	ULevel* GetCurrentLevel() const { return PersistentLevel; }
	/** A new actor in the level; null for a class that is none of an actor, or abstract. */
	AActor* SpawnActor(UClass* Class, const FTransform* UserTransformPtr = nullptr, FName Name = NAME_None);
	template <typename T>
	T* SpawnActor(UClass* Class = T::StaticClass(), const FTransform& Transform = FTransform::Identity)
	{
		return Cast<T>(SpawnActor(Class, &Transform));
	}
};
