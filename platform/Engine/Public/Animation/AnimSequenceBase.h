#pragma once

#include "Animation/Skeleton.h"
#include "AnimSequenceBase.generated.h"

/** An asset that plays on a skeleton. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UAnimationAsset : public UObject
{
	GENERATED_BODY()

public:
	USkeleton* GetSkeleton() const { return Skeleton; }
	void SetSkeleton(USkeleton* NewSkeleton) { Skeleton = NewSkeleton; }

private:
	UPROPERTY(Category = Animation, AssetRegistrySearchable, VisibleAnywhere)
	TObjectPtr<USkeleton> Skeleton;
};

/** An animation over time. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UAnimSequenceBase : public UAnimationAsset
{
	GENERATED_BODY()

public:
	/** 2 plays it twice as fast. */
	UPROPERTY(EditAnywhere, Category = Animation)
	float RateScale = 1.0f;

	UPROPERTY(EditAnywhere, Category = Animation)
	bool bLoop = false;
};
