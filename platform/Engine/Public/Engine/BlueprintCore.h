#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/UObjectGlobals.h"
#include "BlueprintCore.generated.h"

/** An asset that makes a class. */
UCLASS()
class ENGINE_API UBlueprintCore : public UObject
{
	GENERATED_BODY()

public:
	/** Functions and properties only, so that graphs can refer to them before the compile; see UBlueprint::GetSkeletonOrGeneratedClass. */
	UPROPERTY(Transient)
	TSubclassOf<UObject> SkeletonGeneratedClass;

	/** What the last compile made; its objects are what a game has. */
	UPROPERTY()
	TSubclassOf<UObject> GeneratedClass;

	const FGuid& GetBlueprintGuid() const { return BlueprintGuid; }
	void GenerateNewGuid() { BlueprintGuid = FGuid::NewGuid(); }

protected:
	UPROPERTY()
	FGuid BlueprintGuid;
};
