#include "EdGraph/EdGraph.h"

#include "EdGraph/EdGraphSchema.h"

const UEdGraphSchema* UEdGraph::GetSchema() const
{
	return Schema.GetDefaultObject();
}

UEdGraphNode* UEdGraph::CreateNode(TSubclassOf<UEdGraphNode> NewNodeClass, bool bFromUI, bool bSelectNewNode)
{
	UEdGraphNode* const Node = NewObject<UEdGraphNode>(this, NewNodeClass, NAME_None, GetFlags() & RF_Transactional);
	AddNode(Node, bFromUI, bSelectNewNode);
	return Node;
}

void UEdGraph::AddNode(UEdGraphNode* NodeToAdd, bool bUserAction, bool bSelectNewNode)
{
	check(NodeToAdd->GetOuter() == this);
	if (Nodes.Contains(NodeToAdd))
	{
		return;
	}
	Modify();
	Nodes.Add(NodeToAdd);
	NotifyGraphChanged({ .Action = bSelectNewNode ? GRAPHACTION_AddNode | GRAPHACTION_SelectNode : GRAPHACTION_AddNode,
		.Graph = this,
		.Nodes = { NodeToAdd },
		.bUserInvoked = bUserAction });
}

bool UEdGraph::RemoveNode(UEdGraphNode* NodeToRemove, bool bBreakAllLinks)
{
	if (!Nodes.Contains(NodeToRemove))
	{
		return false;
	}
	Modify();
	NodeToRemove->Modify();
	if (bBreakAllLinks)
	{
		NodeToRemove->BreakAllNodeLinks();
	}
	Nodes.RemoveSingle(NodeToRemove);
	NotifyGraphChanged({ .Action = GRAPHACTION_RemoveNode, .Graph = this, .Nodes = { NodeToRemove }, .bUserInvoked = false });
	return true;
}

void UEdGraph::GetAllChildrenGraphs(TArray<UEdGraph*>& Graphs) const
{
	for (UEdGraph* const Graph : SubGraphs)
	{
		if (Graph)
		{
			Graphs.Add(Graph);
			Graph->GetAllChildrenGraphs(Graphs);
		}
	}
}

void UEdGraph::NotifyGraphChanged()
{
	NotifyGraphChanged({ .Action = GRAPHACTION_Default, .Graph = this, .Nodes = {}, .bUserInvoked = false });
}

void UEdGraph::NotifyGraphChanged(const FEdGraphEditAction& Action)
{
	OnGraphChanged.Broadcast(Action);
}

void UEdGraph::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsLoading())
	{
		// A node whose class is gone has left a hole.
		Nodes.RemoveAll([](const UEdGraphNode* Node) { return Node == nullptr; });
		SubGraphs.RemoveAll([](const UEdGraph* Graph) { return Graph == nullptr; });
	}
}
