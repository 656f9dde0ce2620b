#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_Enum.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "Enum"))
class AIMODULE_API UBlackboardKeyType_Enum : public UBlackboardKeyType
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditDefaultsOnly)
	TObjectPtr<UEnum> EnumType;

	/** Of an enum that C++ declares; then it is looked for by name. */
	UPROPERTY(Category = Blackboard, EditDefaultsOnly, meta = (DisplayName = "Enum Name"))
	FString EnumName;
};
