#pragma once

#include "UObject/Object.h"
#include "BTNode.generated.h"

class UBTCompositeNode;
class UBehaviorTree;

/** What behavior trees are made of. */
UCLASS(Abstract, Config = Game)
class AIMODULE_API UBTNode : public UObject
{
	GENERATED_BODY()

public:
	/** The name given to the node, or else its class's. */
	FString GetNodeName() const;
	/** Null for the root. */
	UBTCompositeNode* GetParentNode() const { return ParentNode; }
	UBehaviorTree* GetTreeAsset() const { return TreeAsset; }
	/** The place in the order of execution, counted over the whole tree. */
	uint16 GetExecutionIndex() const { return ExecutionIndex; }
	uint8 GetTreeDepth() const { return TreeDepth; }

	/** Tells the node where it stands in its tree. */
	void InitializeNode(UBTCompositeNode* InParentNode, uint16 InExecutionIndex, uint16 InMemoryOffset, uint8 InTreeDepth);
	virtual void InitializeFromAsset(UBehaviorTree& Asset) { TreeAsset = &Asset; }

	UPROPERTY(Category = Description, EditAnywhere)
	FString NodeName;

private:
	UPROPERTY()
	TObjectPtr<UBehaviorTree> TreeAsset;

	UPROPERTY()
	TObjectPtr<UBTCompositeNode> ParentNode;

	uint16 ExecutionIndex = 0;
	uint8 TreeDepth = 0;
};
