#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "BlueprintGeneratedClass.generated.h"

class UActorComponent;
class USimpleConstructionScript;
class UTimelineTemplate;

/** The class that a Blueprint's compile makes. */
UCLASS()
class ENGINE_API UBlueprintGeneratedClass : public UClass
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<USimpleConstructionScript> SimpleConstructionScript;

	UPROPERTY()
	TArray<TObjectPtr<UActorComponent>> ComponentTemplates;

	UPROPERTY()
	TArray<TObjectPtr<UTimelineTemplate>> Timelines;

	/** What the event graphs became. */
	UPROPERTY()
	TObjectPtr<UFunction> UberGraphFunction;

	/** This class and those above it that Blueprints made, the nearest first. @return whether the compiles of all had no error */
	static bool GetGeneratedClassesHierarchy(const UClass* InClass, TArray<const UBlueprintGeneratedClass*>& OutBPGClasses);
	UTimelineTemplate* FindTimelineTemplateByVariableName(FName TimelineName) const;
};
