#pragma once

#include "BehaviorTree/BTTaskNode.h"
#include "Sound/SoundBase.h"
#include "BTTask_PlaySound.generated.h"

/** Plays a sound. */
UCLASS()
class AIMODULE_API UBTTask_PlaySound : public UBTTaskNode
{
	GENERATED_BODY()

public:
	UBTTask_PlaySound() { NodeName = TEXT("PlaySound"); }

	UPROPERTY(Category = Node, EditAnywhere)
	TObjectPtr<USoundBase> SoundToPlay;
};
