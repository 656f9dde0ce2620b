#pragma once

#include "BehaviorTree/BTDecorator.h"
#include "BTDecorator_Cooldown.generated.h"

/** Holds for a while after its branch has run. */
UCLASS()
class AIMODULE_API UBTDecorator_Cooldown : public UBTDecorator
{
	GENERATED_BODY()

public:
	UBTDecorator_Cooldown() { NodeName = TEXT("Cooldown"); }

	/** In seconds. */
	UPROPERTY(Category = Decorator, EditAnywhere)
	float CoolDownTime = 5.0f;
};
