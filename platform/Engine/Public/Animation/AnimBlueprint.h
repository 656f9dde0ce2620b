#pragma once

#include "Animation/Skeleton.h"
#include "Engine/Blueprint.h"
#include "AnimBlueprint.generated.h"

/** A Blueprint of an animation. */
UCLASS(BlueprintType)
class ENGINE_API UAnimBlueprint : public UBlueprint
{
	GENERATED_BODY()

public:
	UPROPERTY(AssetRegistrySearchable, EditAnywhere, Category = ClassOptions)
	TObjectPtr<USkeleton> TargetSkeleton;

	UPROPERTY(EditAnywhere, Category = Optimization)
	bool bUseMultiThreadedAnimationUpdate = true;

	UClass* GetBlueprintClass() const override;
	bool SupportedByDefaultBlueprintFactory() const override { return false; }
};
