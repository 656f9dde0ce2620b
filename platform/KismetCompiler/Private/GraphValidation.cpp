#include "GraphValidation.h"

#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node.h"
#include "Kismet2/CompilerResultsLog.h"

namespace
{
using FSchema = UEdGraphSchema_K2;

/** One graph's links and defaults. */
class FGraphValidator
{
public:
	FGraphValidator(const UEdGraph& InGraph, const FSchema& InSchema, const UClass* InClass, FCompilerResultsLog& InLog)
		: Graph(InGraph)
		, Schema(InSchema)
		, Class(InClass)
		, Log(InLog)
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			Nodes.Add(Node);
		}
	}

	void Validate()
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (!Node->IsNodeEnabled())
			{
				continue;
			}
			if (const UK2Node* const Known = Cast<UK2Node>(Node))
			{
				Known->ValidateNodeDuringCompilation(Log);
			}
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				ValidatePin(*Pin);
			}
		}
	}

private:
	void ValidatePin(const UEdGraphPin& Pin)
	{
		for (const UEdGraphPin* const Far : Pin.LinkedTo)
		{
			ValidateLink(Pin, *Far);
		}
		const bool bTakesOne = FSchema::IsExecPin(Pin) == (Pin.Direction == EGPD_Output);
		if (bTakesOne && Pin.LinkedTo.Num() > 1)
		{
			Log.Error(TEXT("The pin @@ of @@ can have one link alone"), &Pin, Pin.GetOwningNode());
		}
		const bool bHasDefault = Pin.Direction == EGPD_Input && Pin.LinkedTo.IsEmpty() && !Pin.bOrphanedPin &&
			!Pin.bDefaultValueIsIgnored && !FSchema::IsExecPin(Pin);
		const FString Fault = bHasDefault ? Schema.IsCurrentPinDefaultValid(&Pin) : FString();
		if (!Fault.IsEmpty())
		{
			Log.Error(TEXT("The default of the pin @@ of @@ can't be used: @@"), &Pin, Pin.GetOwningNode(), Fault);
		}
	}

	/** Each link is seen from both ends; the output's end has the word, or the first one where both point the same way. */
	void ValidateLink(const UEdGraphPin& Pin, const UEdGraphPin& Far)
	{
		const UEdGraphNode* const FarNode = Far.GetOwningNode();
		if (!Nodes.Contains(FarNode))
		{
			Log.Error(TEXT("The pin @@ of @@ is linked to a node that is not in the graph"), &Pin, Pin.GetOwningNode());
		}
		else if (Pin.Direction == Far.Direction)
		{
			Log.Error(
				TEXT("The pins @@ of @@ and @@ of @@ are linked, but both are on the same side"), &Pin, Pin.GetOwningNode(), &Far, FarNode);
		}
		else if (Pin.Direction == EGPD_Output && !Schema.ArePinTypesCompatible(Pin.PinType, Far.PinType, Class))
		{
			Log.Error(TEXT("@@ of @@ is @@, which does not fit @@ of @@, which is @@"), &Pin, Pin.GetOwningNode(),
				FSchema::TypeToText(Pin.PinType).ToString(), &Far, FarNode, FSchema::TypeToText(Far.PinType).ToString());
		}
	}

	const UEdGraph& Graph;
	const FSchema& Schema;
	const UClass* const Class;
	FCompilerResultsLog& Log;
	TSet<const UEdGraphNode*> Nodes;
};

void ForgetMessages(const TArray<UEdGraph*>& Graphs)
{
	for (const UEdGraph* const Graph : Graphs)
	{
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Node->bHasCompilerMessage = false;
			Node->ErrorType = 0;
			Node->ErrorMsg.Empty();
		}
	}
}
}

void ValidateGraphs(const UBlueprint& Blueprint, FCompilerResultsLog& Log)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	ForgetMessages(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		if (const FSchema* const Schema = Cast<FSchema>(Graph->GetSchema()))
		{
			FGraphValidator(*Graph, *Schema, Blueprint.GeneratedClass, Log).Validate();
		}
	}
}
