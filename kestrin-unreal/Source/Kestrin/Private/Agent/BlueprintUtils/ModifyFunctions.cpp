#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"

// A function gets its parameters when it is made, and nodes then and later.

namespace
{
const FEntrySection FunctionSection = { TEXT("FunctionModifications"), false, TEXT("Function entry missing 'Name' field.") };

UEdGraph* CreateFunctionGraph(FSectionWork& Work, const FString& Name)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Work.Blueprint, FName(*Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	if (!Graph)
	{
		Work.Say(FString::Printf(TEXT("Failed to create function graph for: %s"), *Name));
		return nullptr;
	}
	FBlueprintEditorUtils::AddFunctionGraph(Work.Blueprint, Graph, false, UFunction::StaticClass());
	return Graph;
}

UK2Node_FunctionResult* AddResultNode(UEdGraph& Graph)
{
	UK2Node_FunctionResult* const Node = NewObject<UK2Node_FunctionResult>(&Graph);
	Node->NodePosX = 600;
	Node->NodePosY = 0;
	Graph.AddNode(Node, false, true);
	return Node;
}

/** A pin for each parameter; those without a name are passed over, those without a type get a message. */
void AddParameters(FSectionWork& Work, const FJsonObject& Entry, const TCHAR* Key, UK2Node_EditablePinBase& Node,
	EEdGraphPinDirection Direction, FEdGraphPinType (*ReadType)(const TSharedPtr<FJsonObject>* Parameter))
{
	ForEachObject(Entry, Key,
		[&](const TSharedPtr<FJsonObject>& Parameter)
		{
		FString Name;
		if (!Parameter->TryGetStringField(TEXT("Name"), Name))
		{
			return;
		}
		const FEdGraphPinType PinType = ReadType(&Parameter);
		if (PinType.PinCategory.IsNone())
		{
			Work.Say(FString::Printf(TEXT("Invalid variable type for variable: %s"), *Name));
			return;
		}
		Node.CreateUserDefinedPin(FName(*Name), PinType, Direction, true);
	});
}
}

UEdGraph* FKestrinBlueprintUtils::CreateFunction(FSectionWork& Work, const FSectionEntry& Entry)
{
	UEdGraph* const Graph = CreateFunctionGraph(Work, Entry.Name);
	UK2Node_FunctionEntry* const EntryNode = Graph ? FindFunctionEntry(*Graph) : nullptr;
	if (!EntryNode)
	{
		return Graph;
	}
	AddParameters(Work, Entry.Json, TEXT("InParams"), *EntryNode, EGPD_Output, &GetVarEdGraphPinTypeFromJSonObject);
	const TArray<TSharedPtr<FJsonValue>>* OutParams = nullptr;
	if (Entry.Json.TryGetArrayField(TEXT("OutParams"), OutParams))
	{
		AddParameters(Work, Entry.Json, TEXT("OutParams"), *AddResultNode(*Graph), EGPD_Input, &GetVarEdGraphPinTypeFromJSonObject);
	}
	Work.bChanged = true;
	Work.Say(FString::Printf(TEXT("Created new function: %s"), *Entry.Name));
	return Graph;
}

bool FKestrinBlueprintUtils::ModifyBlueprintFunctions(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, FunctionSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		UEdGraph* const Existing = FindByNameText(Work.Blueprint->FunctionGraphs, Entry.Name);
		UEdGraph* const Graph = Existing ? Existing : CreateFunction(Work, Entry);
		const TSharedPtr<FJsonObject>* EdGraph = nullptr;
		if (Entry.Json.TryGetObjectField(TEXT("EdGraph"), EdGraph))
		{
			Work.bChanged |= AddNodes(**EdGraph, Graph);
		}
		if (Existing)
		{
			Work.Say(FString::Printf(TEXT("Modified existing function: %s"), *Entry.Name));
		}
	});
}
