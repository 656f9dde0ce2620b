#pragma once

#include "UObject/UObjectGlobals.h"
#include "LatentActionManager.generated.h"

/** Where a graph goes on once a latent function is through. */
USTRUCT(BlueprintType)
struct ENGINE_API FLatentActionInfo
{
	GENERATED_BODY()

	/** What the function gets, to know the place in the graph. */
	UPROPERTY(meta = (NeedsLatentFixup = true))
	int32 Linkage = INDEX_NONE;

	/** Of the node, so that it does not run twice at once. */
	UPROPERTY()
	int32 UUID = INDEX_NONE;

	UPROPERTY()
	FName ExecutionFunction;

	UPROPERTY(meta = (LatentCallbackTarget = true))
	TObjectPtr<UObject> CallbackTarget;
};

/** The latent functions that are under way. Game thread. */
class ENGINE_API FLatentActions
{
public:
	/**
	 * Goes on with the graph after Duration seconds of the platform's clock, unless its object is gone by then.
	 * @param bRestart an action of the same node that is under way starts anew; otherwise it stays as it is
	 */
	static void Delay(const FLatentActionInfo& Info, float Duration, bool bRestart);
};
