#pragma once

// AIModule: behavior trees and blackboards as assets: their nodes with their properties, and the classes that Blueprints derive from.
//
// It leaves out that they run: no task is executed, no blackboard holds values, no controller moves a pawn.

#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "BehaviorTreeTypes.generated.h"

class UBlackboardKeyType;

/** What a decorator aborts when its condition changes. */
UENUM()
namespace EBTFlowAbortMode
{
enum Type : int
{
	None UMETA(DisplayName = "None"),
	LowerPriority UMETA(DisplayName = "Lower Priority"),
	Self UMETA(DisplayName = "Self"),
	Both UMETA(DisplayName = "Both"),
};
}

/** How the decorators of one link are combined. */
UENUM()
namespace EBTDecoratorLogic
{
enum Type : int
{
	Invalid,
	/** The next decorator's condition. */
	Test,
	And,
	Or,
	Not,
};
}

/** How a task ends. */
UENUM(BlueprintType)
namespace EBTNodeResult
{
enum Type : int
{
	Succeeded,
	Failed,
	Aborted,
	InProgress,
};
}

/** Which blackboard key a node works with. */
USTRUCT(BlueprintType)
struct AIMODULE_API FBlackboardKeySelector
{
	GENERATED_BODY()

	/** Types of keys that may be chosen; all when there are none. */
	UPROPERTY(Transient, EditDefaultsOnly, BlueprintReadWrite, Category = Blackboard)
	TArray<TObjectPtr<UBlackboardKeyType>> AllowedTypes;

	UPROPERTY(EditInstanceOnly, BlueprintReadWrite, Category = Blackboard)
	FName SelectedKeyName;

	UPROPERTY(EditInstanceOnly, BlueprintReadWrite, Category = Blackboard)
	TSubclassOf<UBlackboardKeyType> SelectedKeyType;
};

/** Texts about nodes. */
UCLASS(Abstract)
class AIMODULE_API UBehaviorTreeTypes : public UObject
{
	GENERATED_BODY()

public:
	/** A class's name without what stands before its first "_"; of a Blueprint's class the Blueprint's name. */
	static FString GetShortTypeName(const UObject* Ob);
	static FString DescribeFlowAbortMode(EBTFlowAbortMode::Type FlowAbortMode);
};
