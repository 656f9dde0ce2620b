#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"

// The function that runs on clients when a replicated variable's value has arrived.

namespace
{
const FString NotifyPrefix = TEXT("OnRep_");

FEdGraphPinType GetNotifyPinType(UBlueprint& Blueprint, const FString& VariableName)
{
	if (const FBPVariableDescription* const Variable = FindVariable(Blueprint, FName(*VariableName)))
	{
		return Variable->VarType;
	}
	FEdGraphPinType PinType;
	PinType.PinCategory = UEdGraphSchema_K2::PC_Wildcard;
	return PinType;
}

/** For a graph that the engine left without an entry: one that takes the variable's value. */
void CreateEntry(UBlueprint& Blueprint, UEdGraph& Graph, const FString& FunctionName)
{
	FGraphNodeCreator<UK2Node_FunctionEntry> Creator(Graph);
	UK2Node_FunctionEntry* const Entry = Creator.CreateNode(true);
	if (!Entry)
	{
		return;
	}
	Entry->SetExtraFlags(FUNC_BlueprintCosmetic);
	Entry->CustomGeneratedFunctionName = FName(*FunctionName);
	Entry->MetaData = FKismetUserDeclaredFunctionMetadata();
	Entry->MetaData.Category = FText::FromString(TEXT("RepNotify"));
	const FString VariableName = FunctionName.RightChop(NotifyPrefix.Len());
	Entry->CreateUserDefinedPin(FName(*VariableName), GetNotifyPinType(Blueprint, VariableName), EGPD_Output, false);
	Creator.Finalize();
}
}

void FKestrinBlueprintUtils::CreateRepNotifyFunction(UBlueprint* Blueprint, const FString& FunctionName)
{
	if (!Blueprint || FunctionName.IsEmpty() || FindByNameText(Blueprint->FunctionGraphs, FunctionName))
	{
		return;
	}
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, FName(*FunctionName), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	if (!Graph)
	{
		return;
	}
	FBlueprintEditorUtils::AddFunctionGraph(Blueprint, Graph, false, UFunction::StaticClass());
	const UEdGraphSchema_K2* const Schema = Cast<UEdGraphSchema_K2>(Graph->GetSchema());
	if (!Schema)
	{
		return;
	}
	if (!FindFunctionEntry(*Graph))
	{
		CreateEntry(*Blueprint, *Graph, FunctionName);
	}
	Schema->AddExtraFunctionFlags(Graph, FUNC_Net | FUNC_NetServer | FUNC_NetClient);
	FGraphNodeCreator<UK2Node_FunctionResult> Creator(*Graph);
	Creator.CreateNode();
	Creator.Finalize();
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
}
