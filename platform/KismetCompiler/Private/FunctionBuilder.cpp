#include "FunctionBuilder.h"

#include "DelegateSignatures.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Timeline.h"
#include "Kismet2/CompilerResultsLog.h"
#include "PinTypeProperty.h"
#include "UObject/UnrealType.h"

namespace
{
using FSchema = UEdGraphSchema_K2;

constexpr EFunctionFlags AccessFlags = FUNC_Public | FUNC_Protected | FUNC_Private;
constexpr EFunctionFlags NetFlags = FUNC_Net | FUNC_NetReliable | FUNC_NetMulticast | FUNC_NetServer | FUNC_NetClient;

/** Collects the properties of one function. */
class FSignature
{
public:
	FSignature(FClassMembers& InMembers, UFunction& InFunction)
		: Members(InMembers)
		, Function(InFunction)
	{
	}

	/** The pins that carry values. Outputs of an entry are what is passed in, inputs of an exit what is passed out. */
	void AddParameters(const UEdGraphNode& Node, EEdGraphPinDirection Direction)
	{
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			const bool bValue = Pin->Direction == Direction && !FSchema::IsExecPin(*Pin) && !Pin->bOrphanedPin &&
				Pin->PinName != UK2Node_Event::DelegateOutputName && Pin->PinName != FSchema::PN_Self;
			if (bValue)
			{
				AddParameter(*Pin, Direction == EGPD_Input);
			}
		}
	}

	void AddLocalVariables(const TArray<FBPVariableDescription>& Variables)
	{
		for (const FBPVariableDescription& Variable : Variables)
		{
			if (FProperty* const Property = Add(Variable.VarName, Variable.VarType))
			{
				Property->SetPropertyFlags(static_cast<EPropertyFlags>(Variable.PropertyFlags));
			}
		}
	}

	void Finish()
	{
		const bool bOut =
			Properties.ContainsByPredicate([](const FProperty* Property) { return Property->HasAnyPropertyFlags(CPF_OutParm); });
		Function.FunctionFlags |= bOut ? FUNC_HasOutParms : FUNC_None;
		SetProperties(Function, Properties);
	}

private:
	FProperty* Add(FName Name, const FEdGraphPinType& Type)
	{
		const bool bTaken = Properties.ContainsByPredicate([Name](const FProperty* Other) { return Other->GetFName() == Name; });
		FProperty* const Property = bTaken ? nullptr : CreatePropertyFromPinType(&Function, Name, Type, &Members.Class);
		if (!Property)
		{
			Members.Log.Error(bTaken ? TEXT("The function @@ has two parameters or variables @@")
									 : TEXT("In the function @@ the type of @@ is unknown, or what it refers to is gone"),
				Function.GetName(), Name.ToString());
			return nullptr;
		}
		Properties.Add(Property);
		return Property;
	}

	void AddParameter(const UEdGraphPin& Pin, bool bOut)
	{
		FProperty* const Property = Add(Pin.PinName, Pin.PinType);
		if (!Property)
		{
			return;
		}
		Property->SetPropertyFlags(CPF_Parm | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
		Property->SetPropertyFlags(Pin.PinType.bIsConst ? CPF_ConstParm : CPF_None);
		if (bOut)
		{
			Property->SetPropertyFlags(Pin.PinName == FSchema::PN_ReturnValue ? CPF_OutParm | CPF_ReturnParm : CPF_OutParm);
		}
		else
		{
			Property->SetPropertyFlags(Pin.PinType.bIsReference ? CPF_OutParm | CPF_ReferenceParm : CPF_None);
			if (!Pin.DefaultValue.IsEmpty())
			{
				Function.SetMetaData(Pin.PinName, Pin.DefaultValue);
			}
		}
	}

	FClassMembers& Members;
	UFunction& Function;
	TArray<FProperty*> Properties;
};

void SetMetaData(UFunction& Function, const FKismetUserDeclaredFunctionMetadata& MetaData)
{
	const TPair<const TCHAR*, const FText*> Texts[] = {
		{ TEXT("ToolTip"), &MetaData.ToolTip },
		{ TEXT("Category"), &MetaData.Category },
		{ TEXT("Keywords"), &MetaData.Keywords },
		{ TEXT("CompactNodeTitle"), &MetaData.CompactNodeTitle },
	};
	for (const TPair<const TCHAR*, const FText*>& Text : Texts)
	{
		if (!Text.Value->IsEmpty())
		{
			Function.SetMetaData(FName(Text.Key), Text.Value->ToString());
		}
	}
	if (MetaData.bCallInEditor)
	{
		Function.SetMetaData(FName(TEXT("CallInEditor")), TEXT("true"));
	}
}

template <typename NodeType>
NodeType* FindFirst(const UEdGraph& Graph)
{
	TArray<NodeType*> Nodes;
	Graph.GetNodesOfClass(Nodes);
	return Nodes.IsEmpty() ? nullptr : Nodes[0];
}

/** Public when nothing else is said, and never C++ code. */
EFunctionFlags Normalize(EFunctionFlags Flags)
{
	Flags &= ~FUNC_Native;
	return (Flags & AccessFlags) == FUNC_None ? Flags | FUNC_Public : Flags;
}

void AddGraphFunction(FClassMembers& Members, const UEdGraph& Graph, bool bDelegateSignature)
{
	const UK2Node_FunctionEntry* const Entry = FindFirst<UK2Node_FunctionEntry>(Graph);
	if (!Entry)
	{
		Members.Log.Error(TEXT("The function graph @@ has no entry"), &Graph);
		return;
	}
	const FName Custom = Entry->CustomGeneratedFunctionName;
	const FName Name = bDelegateSignature ? FDelegateSignatures::GetName(Graph.GetFName()) : Custom.IsNone() ? Graph.GetFName() : Custom;
	const EFunctionFlags Delegate = bDelegateSignature ? FUNC_Delegate | FUNC_MulticastDelegate : FUNC_None;
	UFunction* const Function = Members.AddFunction(Name, Normalize(static_cast<EFunctionFlags>(Entry->GetFunctionFlags())) | Delegate);
	if (!Function)
	{
		return;
	}
	SetMetaData(*Function, Entry->MetaData);
	FSignature Signature(Members, *Function);
	Signature.AddParameters(*Entry, EGPD_Output);
	if (const UK2Node_FunctionResult* const Exit = FindFirst<UK2Node_FunctionResult>(Graph))
	{
		Signature.AddParameters(*Exit, EGPD_Input);
	}
	Signature.AddLocalVariables(Entry->LocalVariables);
	Signature.Finish();
}

EFunctionFlags GetEventFlags(const UK2Node_Event& Event)
{
	constexpr EFunctionFlags Inherited = AccessFlags | FUNC_Exec | FUNC_Event | FUNC_BlueprintCallable | FUNC_BlueprintEvent |
		FUNC_BlueprintAuthorityOnly | FUNC_BlueprintCosmetic | FUNC_Const;
	const auto Own = static_cast<EFunctionFlags>(Event.FunctionFlags);
	if (Event.IsA<UK2Node_CustomEvent>())
	{
		return Normalize((Own & (NetFlags | AccessFlags)) | FUNC_BlueprintCallable | FUNC_BlueprintEvent);
	}
	const UFunction* const Overridden = Event.bOverrideFunction ? Event.FindEventSignatureFunction() : nullptr;
	return Normalize((Overridden ? Overridden->FunctionFlags & Inherited : FUNC_None) | (Own & NetFlags) | FUNC_BlueprintEvent);
}

/** @return whether there is such an event; a disabled one is none */
bool AddEvent(FClassMembers& Members, const UK2Node_Event& Event)
{
	UFunction* const Function = Event.IsNodeEnabled() ? Members.AddFunction(Event.GetFunctionName(), GetEventFlags(Event)) : nullptr;
	if (!Function)
	{
		return false;
	}
	if (const auto* const Custom = Cast<UK2Node_CustomEvent>(&Event))
	{
		SetMetaData(*Function, Custom->MetaData);
	}
	FSignature Signature(Members, *Function);
	Signature.AddParameters(Event, EGPD_Output);
	Signature.Finish();
	return true;
}

/** What a timeline that a graph uses calls. */
bool AddTimelineEvents(FClassMembers& Members, const UK2Node_Timeline& Node)
{
	const UTimelineTemplate* const Timeline = Node.GetTemplate();
	if (!Timeline || !Node.IsNodeEnabled())
	{
		return false;
	}
	TArray<FName> Names = { Timeline->GetUpdateFunctionName(), Timeline->GetFinishedFunctionName() };
	for (const FTTEventTrack& Track : Timeline->EventTracks)
	{
		Names.Add(Track.GetFunctionName());
	}
	for (const FName Name : Names)
	{
		if (UFunction* const Function = Members.AddFunction(Name, FUNC_Public | FUNC_BlueprintEvent))
		{
			Function->StaticLink();
		}
	}
	return true;
}

/** What all events run in; its name and flags keep it from the author's eyes. */
void AddUberGraphFunction(FClassMembers& Members, const UBlueprint& Blueprint)
{
	const FName Name(FSchema::FN_ExecuteUbergraphBase.ToString() + TEXT("_") + Blueprint.GetName());
	UFunction* const Function = Members.AddFunction(Name, FUNC_Final);
	if (Function)
	{
		auto* const EntryPoint = new FIntProperty(Function, FName(TEXT("EntryPoint")), RF_Public);
		EntryPoint->SetPropertyFlags(CPF_Parm | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
		SetProperties(*Function, { EntryPoint });
	}
	CastChecked<UBlueprintGeneratedClass>(&Members.Class)->UberGraphFunction = Function;
}

void AddEvents(FClassMembers& Members, const UBlueprint& Blueprint)
{
	bool bAny = false;
	TArray<UEdGraph*> Pages;
	for (UEdGraph* const Page : Blueprint.UbergraphPages)
	{
		if (Page)
		{
			Pages.Add(Page);
			Page->GetAllChildrenGraphs(Pages);
		}
	}
	for (const UEdGraph* const Page : Pages)
	{
		for (const UEdGraphNode* const Node : Page->Nodes)
		{
			if (const auto* const Event = Cast<UK2Node_Event>(Node))
			{
				bAny |= AddEvent(Members, *Event);
			}
			else if (const auto* const Timeline = Cast<UK2Node_Timeline>(Node))
			{
				bAny |= AddTimelineEvents(Members, *Timeline);
			}
		}
	}
	CastChecked<UBlueprintGeneratedClass>(&Members.Class)->UberGraphFunction = nullptr;
	if (bAny)
	{
		AddUberGraphFunction(Members, Blueprint);
	}
}

void AddGraphFunctions(FClassMembers& Members, const TArray<TObjectPtr<UEdGraph>>& Graphs, bool bDelegateSignatures)
{
	for (const UEdGraph* const Graph : Graphs)
	{
		if (Graph)
		{
			AddGraphFunction(Members, *Graph, bDelegateSignatures);
		}
	}
}
}

void AddDelegateSignatures(FClassMembers& Members, const UBlueprint& Blueprint)
{
	AddGraphFunctions(Members, Blueprint.DelegateSignatureGraphs, true);
}

void AddFunctions(FClassMembers& Members, const UBlueprint& Blueprint)
{
	AddGraphFunctions(Members, Blueprint.FunctionGraphs, false);
	for (const FBPInterfaceDescription& Interface : Blueprint.ImplementedInterfaces)
	{
		AddGraphFunctions(Members, Interface.Graphs, false);
	}
	AddEvents(Members, Blueprint);
}
