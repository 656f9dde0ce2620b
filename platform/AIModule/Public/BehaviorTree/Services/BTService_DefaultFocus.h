#pragma once

#include "BehaviorTree/Services/BTService_BlackboardBase.h"
#include "BTService_DefaultFocus.generated.h"

/** Lets the pawn look at the place or actor of a key. */
UCLASS()
class AIMODULE_API UBTService_DefaultFocus : public UBTService_BlackboardBase
{
	GENERATED_BODY()

public:
	UBTService_DefaultFocus() { NodeName = TEXT("Set default focus"); }
};
