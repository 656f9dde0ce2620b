#pragma once

#include "BehaviorTree/BTNode.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BTCompositeNode.generated.h"

class UBTDecorator;
class UBTService;
class UBTTaskNode;

/** One step in how the conditions of a link are combined. */
USTRUCT()
struct AIMODULE_API FBTDecoratorLogic
{
	GENERATED_BODY()

	UPROPERTY()
	TEnumAsByte<EBTDecoratorLogic::Type> Operation = EBTDecoratorLogic::Invalid;

	/** The decorator's index, or how many operands an operation takes. */
	UPROPERTY()
	uint16 Number = 0;
};

/** The link to a child, which is a composite or a task. */
USTRUCT()
struct AIMODULE_API FBTCompositeChild
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UBTCompositeNode> ChildComposite;

	UPROPERTY()
	TObjectPtr<UBTTaskNode> ChildTask;

	UPROPERTY()
	TArray<TObjectPtr<UBTDecorator>> Decorators;

	UPROPERTY()
	TArray<FBTDecoratorLogic> DecoratorOps;
};

/** A node that says which of its children run. */
UCLASS(Abstract)
class AIMODULE_API UBTCompositeNode : public UBTNode
{
	GENERATED_BODY()

public:
	int32 GetChildrenNum() const { return Children.Num(); }
	/** The composite or task, or null. */
	UBTNode* GetChildNode(int32 Index) const;

	UPROPERTY()
	TArray<FBTCompositeChild> Children;

	UPROPERTY()
	TArray<TObjectPtr<UBTService>> Services;

protected:
	UPROPERTY(EditAnywhere, Category = Composite)
	uint32 bApplyDecoratorScope : 1 = false;
};
