#include "EdGraphSchema_K2.h"

#include "ClassRelations.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Parameters.h"

namespace
{
/** To the class that has it, to the function for a local variable, or to the graph's own class. */
FMemberReference ReferToVariable(const UBlueprint& Blueprint, FName VariableName, UStruct* Source)
{
	FMemberReference Result;
	UClass* const Class = Cast<UClass>(Source);
	if (Source && !Class)
	{
		Result.SetLocalMember(VariableName, Source->GetName(), FGuid());
	}
	else if (Class && !IsClassOf(Blueprint, Class))
	{
		Result.SetExternalMember(VariableName, Class);
	}
	else
	{
		Result.SetSelfMember(VariableName);
	}
	return Result;
}

template <typename NodeType>
NodeType* SpawnVariableNode(const FVector2D& Position, UEdGraph* Graph, FName VariableName, UStruct* Source)
{
	const UBlueprint* const Blueprint = Graph ? Graph->GetTypedOuter<UBlueprint>() : nullptr;
	if (!Blueprint)
	{
		return nullptr;
	}
	FGraphNodeCreator<NodeType> Creator(*Graph);
	NodeType* const Node = Creator.CreateNode();
	Node->VariableReference = ReferToVariable(*Blueprint, VariableName, Source);
	Node->NodePosX = static_cast<int32>(FMath::Clamp(Position.X, -2.0e9, 2.0e9));
	Node->NodePosY = static_cast<int32>(FMath::Clamp(Position.Y, -2.0e9, 2.0e9));
	Creator.Finalize();
	return Node;
}

UK2Node_FunctionEntry& CreateEntry(UEdGraph& Graph, UClass* Class)
{
	FGraphNodeCreator<UK2Node_FunctionEntry> Creator(Graph);
	UK2Node_FunctionEntry* const Entry = Creator.CreateNode();
	Entry->FunctionReference.SetExternalMember(Graph.GetFName(), Class);
	Creator.Finalize();
	return *Entry;
}

bool HasResults(const UFunction* Function)
{
	for (TFieldIterator<FProperty> Parameter(Function, EFieldIterationFlags::None); Parameter; ++Parameter)
	{
		if (IsOutput(*Parameter))
		{
			return true;
		}
	}
	return false;
}

/** To the right of the entry, and linked to it. */
UK2Node_FunctionResult& CreateExit(UEdGraph& Graph, UK2Node_FunctionEntry& Entry)
{
	FGraphNodeCreator<UK2Node_FunctionResult> Creator(Graph);
	UK2Node_FunctionResult* const Exit = Creator.CreateNode();
	Exit->NodePosX = Entry.NodePosX + Entry.NodeWidth + 256;
	Exit->NodePosY = Entry.NodePosY;
	Creator.Finalize();
	Entry.FindPinChecked(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Exit->FindPinChecked(UEdGraphSchema_K2::PN_Execute));
	return *Exit;
}
}

UK2Node_VariableGet* UEdGraphSchema_K2::SpawnVariableGetNode(
	const FVector2D GraphPosition, UEdGraph* ParentGraph, FName VariableName, UStruct* Source) const
{
	return SpawnVariableNode<UK2Node_VariableGet>(GraphPosition, ParentGraph, VariableName, Source);
}

UK2Node_VariableSet* UEdGraphSchema_K2::SpawnVariableSetNode(
	const FVector2D GraphPosition, UEdGraph* ParentGraph, FName VariableName, UStruct* Source) const
{
	return SpawnVariableNode<UK2Node_VariableSet>(GraphPosition, ParentGraph, VariableName, Source);
}

void UEdGraphSchema_K2::AddExtraFunctionFlags(const UEdGraph* CurrentGraph, int32 ExtraFlags) const
{
	TArray<UK2Node_FunctionEntry*> Entries;
	CurrentGraph->GetNodesOfClass(Entries);
	for (UK2Node_FunctionEntry* const Entry : Entries)
	{
		Entry->Modify();
		Entry->AddExtraFlags(ExtraFlags);
	}
}

void UEdGraphSchema_K2::MarkFunctionEntryAsEditable(const UEdGraph* CurrentGraph, bool bNewEditable) const
{
	TArray<UK2Node_EditablePinBase*> Nodes;
	CurrentGraph->GetNodesOfClass(Nodes);
	for (UK2Node_EditablePinBase* const Node : Nodes)
	{
		Node->Modify();
		Node->bIsEditable = bNewEditable;
	}
}

void UEdGraphSchema_K2::CreateFunctionGraphTerminators(UEdGraph& Graph, UClass* Class) const
{
	UK2Node_FunctionEntry& Entry = CreateEntry(Graph, Class);
	const UFunction* const Overridden = Entry.FindSignatureFunction();
	if (!Overridden)
	{
		return;
	}
	Entry.AddExtraFlags(Overridden->FunctionFlags & (FUNC_Exec | FUNC_Event | FUNC_BlueprintPure));
	if (HasResults(Overridden))
	{
		CreateExit(Graph, Entry);
	}
}

void UEdGraphSchema_K2::CreateFunctionGraphTerminators(UEdGraph& Graph, const UFunction* FunctionSignature) const
{
	UK2Node_FunctionEntry& Entry = CreateEntry(Graph, nullptr);
	if (!FunctionSignature)
	{
		return;
	}
	Entry.CreateUserDefinedPinsForFunctionEntryExit(FunctionSignature, true);
	if (HasResults(FunctionSignature))
	{
		CreateExit(Graph, Entry).CreateUserDefinedPinsForFunctionEntryExit(FunctionSignature, false);
	}
}
