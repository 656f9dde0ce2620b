#include "K2Node_FunctionTerminator.h"

#include "ClassRelations.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"

UFunction* UK2Node_FunctionTerminator::FindSignatureFunction() const
{
	return ResolveFunction(FunctionReference, *this);
}

bool UK2Node_FunctionTerminator::IsPinNameTaken(FName Name) const
{
	TArray<UK2Node_FunctionTerminator*> Terminators;
	if (const UEdGraph* const Graph = GetGraph())
	{
		Graph->GetNodesOfClass(Terminators);
	}
	// The exits share their pins.
	return FindPin(Name) ||
		Terminators.ContainsByPredicate(
			[this, Name](const UK2Node_FunctionTerminator* Node) { return Node->GetClass() != GetClass() && Node->FindPin(Name); });
}

int32 UK2Node_FunctionEntry::GetFunctionFlags() const
{
	const UFunction* const Function = FindSignatureFunction();
	return ExtraFlags | (Function ? static_cast<int32>(Function->FunctionFlags) : 0);
}

void UK2Node_FunctionEntry::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Then);
	if (const UFunction* const Function = FindSignatureFunction())
	{
		CreatePinsForFunctionEntryExit(Function, true);
	}
	Super::AllocateDefaultPins();
}

FText UK2Node_FunctionEntry::GetNodeTitle(ENodeTitleType::Type) const
{
	if (const UFunction* const Function = FindSignatureFunction())
	{
		return UEdGraphSchema_K2::GetFriendlySignatureName(Function);
	}
	const UEdGraph* const Graph = GetGraph();
	return FFieldMetaData().GetDisplayName(Graph ? Graph->GetName() : FunctionReference.GetMemberName().ToString());
}

void UK2Node_FunctionResult::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Execute);
	if (const UFunction* const Function = FindSignatureFunction())
	{
		CreatePinsForFunctionEntryExit(Function, false);
	}
	Super::AllocateDefaultPins();
}

FText UK2Node_FunctionResult::GetNodeTitle(ENodeTitleType::Type) const
{
	return NSLOCTEXT("K2Node", "ReturnNode", "Return Node");
}

void UK2Node_FunctionResult::PostPlacedNewNode()
{
	TArray<UK2Node_FunctionTerminator*> Terminators;
	GetGraph()->GetNodesOfClass(Terminators);
	Terminators.RemoveSingle(this);
	for (const UK2Node_FunctionTerminator* const Node : Terminators)
	{
		FunctionReference = Node->FunctionReference;
		bIsEditable = Node->bIsEditable;
		if (Node->IsA<UK2Node_FunctionResult>())
		{
			UserDefinedPins.Empty();
			for (const TSharedPtr<FUserPinInfo>& Info : Node->UserDefinedPins)
			{
				UserDefinedPins.Add(MakeShared<FUserPinInfo>(*Info));
			}
			break;
		}
	}
}
