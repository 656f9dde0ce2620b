#pragma once

#include "Components/ActorComponent.h"
#include "TimelineComponent.generated.h"

UENUM(BlueprintType)
namespace ETimelineDirection
{
enum Type : int
{
	Forward,
	Backward,
};
}

/** What runs a Blueprint's timeline; the curves are the template's. */
UCLASS()
class ENGINE_API UTimelineComponent : public UActorComponent
{
	GENERATED_BODY()
};
