#pragma once

#include "EdGraph/EdGraphNode.h"
#include "Templates/SubclassOf.h"
#include "EdGraph.generated.h"

class UEdGraphSchema;

enum EEdGraphActionType : uint32
{
	/** Anything may have changed. */
	GRAPHACTION_Default = 0x0,
	GRAPHACTION_AddNode = 0x1,
	GRAPHACTION_SelectNode = 0x2,
	GRAPHACTION_RemoveNode = 0x4,
};
ENUM_CLASS_FLAGS(EEdGraphActionType)

/** What listeners of a graph learn. */
struct FEdGraphEditAction
{
	EEdGraphActionType Action = GRAPHACTION_Default;
	UEdGraph* Graph = nullptr;
	TArray<const UEdGraphNode*> Nodes;
	bool bUserInvoked = false;
};

DECLARE_MULTICAST_DELEGATE_OneParam(FOnGraphChanged, const FEdGraphEditAction&);

/** Nodes with linked pins, of the kinds and by the rules of a schema. */
UCLASS()
class ENGINE_API UEdGraph : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<UEdGraphSchema> Schema;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraphNode>> Nodes;

	UPROPERTY()
	uint8 bEditable : 1 = 1;

	UPROPERTY()
	uint8 bAllowDeletion : 1 = 1;

	UPROPERTY()
	uint8 bAllowRenaming : 1 = 1;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> SubGraphs;

	UPROPERTY()
	FGuid GraphGuid;

	/** Of the interface's function that the graph implements. */
	UPROPERTY()
	FGuid InterfaceGuid;

	/** The schema class's default object, null for a graph without one. */
	const UEdGraphSchema* GetSchema() const;
	/** Puts in a node that has this graph as its outer; one that is there already stays where it is. */
	void AddNode(UEdGraphNode* NodeToAdd, bool bUserAction = false, bool bSelectNewNode = true);
	/** @return whether it was there. The object itself stays until it is collected. */
	bool RemoveNode(UEdGraphNode* NodeToRemove, bool bBreakAllLinks = true);
	/** A node of the compiler's, which nobody is told of. */
	template <typename NodeType>
	NodeType* CreateIntermediateNode()
	{
		NodeType* const Node = NewObject<NodeType>(this);
		Nodes.Add(Node);
		return Node;
	}
	/** Subclasses, too. */
	template <typename NodeType>
	void GetNodesOfClass(TArray<NodeType*>& OutNodes) const
	{
		for (UEdGraphNode* const Node : Nodes)
		{
			if (NodeType* const Typed = Cast<NodeType>(Node))
			{
				OutNodes.Add(Typed);
			}
		}
	}
	/** Those below this graph, at any depth. */
	void GetAllChildrenGraphs(TArray<UEdGraph*>& Graphs) const;

	FDelegateHandle AddOnGraphChangedHandler(const FOnGraphChanged::FDelegate& InHandler) { return OnGraphChanged.Add(InHandler); }
	void RemoveOnGraphChangedHandler(FDelegateHandle Handle) { OnGraphChanged.Remove(Handle); }
	virtual void NotifyGraphChanged();
	virtual void NotifyGraphChanged(const FEdGraphEditAction& Action);

	void Serialize(FArchive& Ar) override;

private:
	template <typename NodeType>
	friend struct FGraphNodeCreator;

	UEdGraphNode* CreateNode(TSubclassOf<UEdGraphNode> NewNodeClass, bool bFromUI, bool bSelectNewNode);

	FOnGraphChanged OnGraphChanged;
};

/** Makes a node in a graph: CreateNode, then what the node needs to know, then Finalize, which makes its pins. */
template <typename NodeType>
struct FGraphNodeCreator
{
	explicit FGraphNodeCreator(UEdGraph& InGraph)
		: Graph(InGraph)
	{
	}
	~FGraphNodeCreator() { checkf(bPlaced || !Node, TEXT("a new node was not finalized")); }
	UE_NONCOPYABLE(FGraphNodeCreator)

	NodeType* CreateNode(bool bSelectNewNode = true, TSubclassOf<NodeType> NodeClass = NodeType::StaticClass())
	{
		Node = static_cast<NodeType*>(Graph.CreateNode(NodeClass.Get(), false, bSelectNewNode));
		return Node;
	}

	NodeType* CreateUserInvokedNode(bool bSelectNewNode = true, TSubclassOf<NodeType> NodeClass = NodeType::StaticClass())
	{
		Node = static_cast<NodeType*>(Graph.CreateNode(NodeClass.Get(), true, bSelectNewNode));
		return Node;
	}

	void Finalize()
	{
		check(!bPlaced);
		Node->CreateNewGuid();
		Node->PostPlacedNewNode();
		if (Node->Pins.IsEmpty())
		{
			Node->AllocateDefaultPins();
		}
		bPlaced = true;
	}

private:
	UEdGraph& Graph;
	NodeType* Node = nullptr;
	bool bPlaced = false;
};
