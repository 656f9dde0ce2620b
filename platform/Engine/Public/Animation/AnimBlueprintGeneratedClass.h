#pragma once

#include "Animation/Skeleton.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "AnimBlueprintGeneratedClass.generated.h"

UCLASS()
class ENGINE_API UAnimBlueprintGeneratedClass : public UBlueprintGeneratedClass
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<USkeleton> TargetSkeleton;
};
