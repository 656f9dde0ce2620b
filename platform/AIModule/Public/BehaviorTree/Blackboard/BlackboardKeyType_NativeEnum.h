#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_NativeEnum.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "Native Enum"))
class AIMODULE_API UBlackboardKeyType_NativeEnum : public UBlackboardKeyType
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditDefaultsOnly)
	FString EnumName;

	/** Found by the name. */
	UPROPERTY()
	TObjectPtr<UEnum> EnumType;
};
