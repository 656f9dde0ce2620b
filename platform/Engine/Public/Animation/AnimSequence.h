#pragma once

#include "Animation/AnimSequenceBase.h"
#include "AnimSequence.generated.h"

/** One animation. There are no bone tracks in it here. */
UCLASS(config = Engine, hidecategories = (UObject, Length), BlueprintType)
class ENGINE_API UAnimSequence : public UAnimSequenceBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, AssetRegistrySearchable, Category = RootMotion, meta = (DisplayName = "EnableRootMotion"))
	bool bEnableRootMotion = false;
};
