#pragma once

#include "BehaviorTree/Blackboard/BlackboardKeyType.h"
#include "Engine/DataAsset.h"
#include "BlackboardData.generated.h"

/** A key of a blackboard. */
USTRUCT(BlueprintType)
struct AIMODULE_API FBlackboardEntry
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Blackboard)
	FName EntryName;

	UPROPERTY(EditAnywhere, Category = Blackboard, meta = (ToolTip = "Optional description to explain what this blackboard entry does."))
	FString EntryDescription;

	UPROPERTY(EditAnywhere, Category = Blackboard)
	FName EntryCategory;

	UPROPERTY(EditAnywhere, Instanced, BlueprintReadWrite, Category = Blackboard)
	TObjectPtr<UBlackboardKeyType> KeyType;

	/** Whether all users of the blackboard share the value. */
	UPROPERTY(EditAnywhere, Category = Blackboard)
	uint32 bInstanceSynced : 1 = false;
};

/** Which keys the trees of an AI have in common. */
UCLASS(BlueprintType)
class AIMODULE_API UBlackboardData : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Its keys are there, too. */
	UPROPERTY(EditAnywhere, Category = Parent)
	TObjectPtr<UBlackboardData> Parent;

	UPROPERTY(EditAnywhere, Category = Blackboard)
	TArray<FBlackboardEntry> Keys;
};
