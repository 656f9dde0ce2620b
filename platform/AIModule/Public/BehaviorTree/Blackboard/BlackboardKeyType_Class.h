#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "BlackboardKeyType_Class.generated.h"

UCLASS(EditInlineNew, meta = (DisplayName = "Class"))
class AIMODULE_API UBlackboardKeyType_Class : public UBlackboardKeyType
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Blackboard, EditDefaultsOnly, meta = (AllowAbstract = "1"))
	TObjectPtr<UClass> BaseClass;
};
