#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_CallFunction.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"

// Nodes as documents describe them. Nothing here says what could not be done: who wants to know reads the graph.

namespace
{
/** Where a new node goes. */
struct FNodePlace
{
	UEdGraph& Graph;
	const UEdGraphSchema_K2& Schema;
	UBlueprint& Blueprint;
	FVector2D Position;
};

UEdGraphNode* CreateVariableGet(const FNodePlace& Place, const FString& VariableName)
{
	return Place.Schema.SpawnVariableGetNode(Place.Position, &Place.Graph, FName(*VariableName), Place.Blueprint.GeneratedClass);
}

UEdGraphNode* CreateVariableSet(const FNodePlace& Place, const FString& VariableName)
{
	return Place.Schema.SpawnVariableSetNode(Place.Position, &Place.Graph, FName(*VariableName), Place.Blueprint.GeneratedClass);
}

/** A call of a function that is not there is a node without a function. */
UEdGraphNode* CreateCall(const FNodePlace& Place, const FString& FunctionName)
{
	FGraphNodeCreator<UK2Node_CallFunction> Creator(Place.Graph);
	UK2Node_CallFunction* const Node = Creator.CreateNode();
	Node->NodePosX = static_cast<int32>(Place.Position.X);
	Node->NodePosY = static_cast<int32>(Place.Position.Y);
	if (const UFunction* const Function = UKismetSystemLibrary::StaticClass()->FindFunctionByName(FName(*FunctionName)))
	{
		Node->SetFromFunction(Function);
	}
	Creator.Finalize();
	return Node;
}

struct FNodeClassRow
{
	const TCHAR* Class;
	/** The property that says what the node is about. */
	const TCHAR* Subject;
	UEdGraphNode* (*Create)(const FNodePlace& Place, const FString& Subject);
};

const FNodeClassRow NodeClassRows[] = {
	{ TEXT("UK2Node_VariableGet"), TEXT("VariableName"), &CreateVariableGet },
	{ TEXT("UK2Node_VariableSet"), TEXT("VariableName"), &CreateVariableSet },
	{ TEXT("UK2Node_CallFunction"), TEXT("FunctionName"), &CreateCall },
};

/** The origin, unless both coordinates are given. */
FVector2D ReadPosition(const FJsonObject& Entry)
{
	const TSharedPtr<FJsonObject>* Location = nullptr;
	double X = 0.0;
	double Y = 0.0;
	const bool bGiven = Entry.TryGetObjectField(TEXT("Location"), Location) && (*Location)->TryGetNumberField(TEXT("X"), X) &&
		(*Location)->TryGetNumberField(TEXT("Y"), Y);
	return bGiven ? FVector2D(X, Y) : FVector2D::ZeroVector;
}

/** The pin of that name on the first node of that title, in the graph's order, that has one. */
UEdGraphPin* FindPinByTitle(const UEdGraph& Graph, const FString& Title, const FString& PinName)
{
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node && Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString().Equals(Title, ESearchCase::IgnoreCase))
		{
			if (UEdGraphPin* const Pin = Node->FindPin(FName(*PinName), EGPD_MAX))
			{
				return Pin;
			}
		}
	}
	return nullptr;
}

/** Links to what stands in the graph by now; nobody asks whether the pins fit. @return whether there is a new link */
bool Connect(UEdGraphPin& Pin, const UEdGraph& Graph, const FJsonObject& Connection)
{
	FString Title;
	FString PinName;
	if (!Connection.TryGetStringField(TEXT("Node"), Title) || !Connection.TryGetStringField(TEXT("Pin"), PinName))
	{
		return false;
	}
	UEdGraphPin* const Other = FindPinByTitle(Graph, Title, PinName);
	if (Other)
	{
		Pin.MakeLinkTo(Other, true);
	}
	return Other != nullptr;
}

/** @return whether anything was set */
bool ModifyPin(UEdGraphNode& Node, const FJsonObject& Entry)
{
	FString Text;
	UEdGraphPin* const Pin = Entry.TryGetStringField(TEXT("PinName"), Text) ? Node.FindPin(FName(*Text), EGPD_MAX) : nullptr;
	if (!Pin)
	{
		return false;
	}
	bool bSet = false;
	if (Entry.TryGetStringField(TEXT("Value"), Text))
	{
		Pin->DefaultValue = Text;
		bSet = true;
	}
	if (Entry.TryGetStringField(TEXT("Direction"), Text))
	{
		Pin->Direction = Text.Equals(TEXT("Input"), ESearchCase::IgnoreCase) ? EGPD_Input : EGPD_Output;
		bSet = true;
	}
	ForEachObject(Entry, TEXT("Connections"),
		[&](const TSharedPtr<FJsonObject>& Connection) { bSet |= Connect(*Pin, *Node.GetGraph(), *Connection); });
	return bSet;
}
}

UEdGraphNode* FKestrinBlueprintUtils::CreateEdGraphNode(const TSharedPtr<FJsonObject>& Entry, UEdGraph* Graph)
{
	const UEdGraphSchema_K2* const Schema = Graph ? Cast<UEdGraphSchema_K2>(Graph->GetSchema()) : nullptr;
	UBlueprint* const Blueprint = Schema ? FBlueprintEditorUtils::FindBlueprintForGraph(Graph) : nullptr;
	FString Class;
	if (!Blueprint || !Entry->TryGetStringField(TEXT("Class"), Class))
	{
		return nullptr;
	}
	for (const FNodeClassRow& Row : NodeClassRows)
	{
		if (Class.Equals(Row.Class, ESearchCase::IgnoreCase))
		{
			const TSharedPtr<FJsonObject>* Properties = nullptr;
			FString Subject;
			const bool bComplete =
				Entry->TryGetObjectField(TEXT("Properties"), Properties) && (*Properties)->TryGetStringField(Row.Subject, Subject);
			return bComplete ? Row.Create({ *Graph, *Schema, *Blueprint, ReadPosition(*Entry) }, Subject) : nullptr;
		}
	}
	return nullptr;
}

bool FKestrinBlueprintUtils::ModifyNodeProperties(UEdGraphNode* Node, const FJsonObject& Entry, UEdGraph* Graph)
{
	const TSharedPtr<FJsonObject>* Properties = nullptr;
	if (!Node || !Entry.TryGetObjectField(TEXT("Properties"), Properties))
	{
		return false;
	}
	bool bSet = (*Properties)->TryGetStringField(TEXT("Comment"), Node->NodeComment);
	ForEachObject(**Properties, TEXT("Pins"), [&](const TSharedPtr<FJsonObject>& Pin) { bSet |= ModifyPin(*Node, *Pin); });
	if (bSet)
	{
		Node->GetGraph()->NotifyGraphChanged();
	}
	return bSet;
}

bool FKestrinBlueprintUtils::AddNodes(const FJsonObject& Parent, UEdGraph* Graph)
{
	bool bSet = false;
	ForEachObject(Parent, TEXT("Nodes"),
		[&](const TSharedPtr<FJsonObject>& Entry)
		{
		if (UEdGraphNode* const Node = CreateEdGraphNode(Entry, Graph))
		{
			bSet |= ModifyNodeProperties(Node, *Entry, Graph);
		}
	});
	return bSet;
}
