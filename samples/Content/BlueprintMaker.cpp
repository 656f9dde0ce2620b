#include "BlueprintMaker.h"

#include "AssetMaker.h"
#include "Components/SceneComponent.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"

namespace
{
template <typename NodeType>
NodeType* MakeNode(UEdGraph* Graph, int32 X, int32 Y, TFunctionRef<void(NodeType&)> Prepare)
{
	FGraphNodeCreator<NodeType> Creator(*Graph);
	NodeType* const Node = Creator.CreateNode(false);
	Node->NodePosX = X;
	Node->NodePosY = Y;
	Prepare(*Node);
	Creator.Finalize();
	return Node;
}

template <typename NodeType>
NodeType* FindNode(UEdGraph* Graph, TFunctionRef<bool(const NodeType&)> Fits)
{
	TArray<NodeType*> Nodes;
	Graph->GetNodesOfClass(Nodes);
	NodeType* const* const Found = Nodes.FindByPredicate([Fits](const NodeType* Node) { return Fits(*Node); });
	return Found ? *Found : nullptr;
}

UEdGraphPin* FindPin(UK2Node* Node, FName Name, EEdGraphPinDirection Direction)
{
	UEdGraphPin* const Pin = Node->FindPin(Name, Direction);
	checkf(Pin, TEXT("%s has no pin %s"), *Node->GetNodeTitle(ENodeTitleType::ListView).ToString(), *Name.ToString());
	return Pin;
}

const UEdGraphSchema_K2& GetSchema()
{
	return *GetDefault<UEdGraphSchema_K2>();
}
}

UBlueprint* FGraphMaker::GetBlueprint() const
{
	return FBlueprintEditorUtils::FindBlueprintForGraphChecked(Graph);
}

UK2Node* FGraphMaker::Get(FName Variable, int32 X, int32 Y) const
{
	return MakeNode<UK2Node_VariableGet>(Graph, X, Y, [=](auto& Node) { Node.VariableReference.SetSelfMember(Variable); });
}

UK2Node* FGraphMaker::Set(FName Variable, int32 X, int32 Y) const
{
	return MakeNode<UK2Node_VariableSet>(Graph, X, Y, [=](auto& Node) { Node.VariableReference.SetSelfMember(Variable); });
}

UK2Node* FGraphMaker::Call(UClass* Class, FName Function, int32 X, int32 Y) const
{
	return MakeNode<UK2Node_CallFunction>(Graph, X, Y,
		[=](auto& Node)
		{
		if (!Class)
		{
			Node.FunctionReference.SetSelfMember(Function);
			return;
		}
		const UFunction* const Target = Class->FindFunctionByName(Function);
		checkf(Target, TEXT("%s has no function %s"), *Class->GetName(), *Function.ToString());
		Node.SetFromFunction(Target);
	});
}

UK2Node* FGraphMaker::Branch(int32 X, int32 Y) const
{
	return MakeNode<UK2Node_IfThenElse>(Graph, X, Y, [](auto&) {});
}

UK2Node* FGraphMaker::Event(UClass* Class, FName Function, int32 X, int32 Y) const
{
	UK2Node_Event* Node =
		FindNode<UK2Node_Event>(Graph, [=](const UK2Node_Event& Each) { return Each.EventReference.GetMemberName() == Function; });
	if (!Node)
	{
		Node = MakeNode<UK2Node_Event>(Graph, X, Y,
			[=](auto& New)
			{
			New.EventReference.SetExternalMember(Function, Class);
			New.bOverrideFunction = true;
		});
	}
	Node->SetEnabledState(ENodeEnabledState::Enabled);
	return Node;
}

UK2Node* FGraphMaker::CustomEvent(FName Name, int32 X, int32 Y) const
{
	return MakeNode<UK2Node_CustomEvent>(Graph, X, Y, [=](auto& Node) { Node.CustomFunctionName = Name; });
}

UK2Node* FGraphMaker::Entry() const
{
	return FindNode<UK2Node_FunctionEntry>(Graph, [](const auto&) { return true; });
}

UK2Node* FGraphMaker::Result(int32 X, int32 Y) const
{
	UK2Node_FunctionResult* const Found = FindNode<UK2Node_FunctionResult>(Graph, [](const auto&) { return true; });
	return Found ? Found : MakeNode<UK2Node_FunctionResult>(Graph, X, Y, [](auto&) {});
}

void FGraphMaker::Link(UK2Node* From, FName Output, UK2Node* To, FName Input)
{
	const bool bLinked = GetSchema().TryCreateConnection(FindPin(From, Output, EGPD_Output), FindPin(To, Input, EGPD_Input));
	checkf(bLinked, TEXT("%s does not fit %s"), *Output.ToString(), *Input.ToString());
}

void FGraphMaker::Chain(const TArray<UK2Node*>& Nodes)
{
	for (int32 Index = 1; Index < Nodes.Num(); ++Index)
	{
		Link(Nodes[Index - 1], UEdGraphSchema_K2::PN_Then, Nodes[Index], UEdGraphSchema_K2::PN_Execute);
	}
}

void FGraphMaker::SetValue(UK2Node* Node, FName Pin, const FString& Value)
{
	GetSchema().TrySetDefaultValue(*FindPin(Node, Pin, EGPD_Input), Value);
}

FBlueprintMaker::FBlueprintMaker(const TCHAR* Path, UClass* Parent, EBlueprintType Type)
	: FBlueprintMaker(Path, Parent, Type, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass())
{
}

FBlueprintMaker::FBlueprintMaker(const TCHAR* Path, UClass* Parent, EBlueprintType Type, UClass* BlueprintClass, UClass* GeneratedClass)
{
	UPackage* const Package = MakePackage(Path);
	const FName Name(FPackageName::GetShortName(Package->GetName()));
	Blueprint = FKismetEditorUtilities::CreateBlueprint(Parent, Package, Name, Type, BlueprintClass, GeneratedClass);
}

FBPVariableDescription& FBlueprintMaker::Variable(FName Name, const FEdGraphPinType& Type, const TCHAR* Default, const TCHAR* Category)
{
	verify(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type, Default));
	FBPVariableDescription& Made = Blueprint->NewVariables[FBlueprintEditorUtils::FindNewVariableIndex(Blueprint, Name)];
	Made.Category = FText::FromString(Category);
	Made.PropertyFlags &= ~CPF_DisableEditOnInstance;
	return Made;
}

USCS_Node* FBlueprintMaker::Component(FName Name, UClass* Class, USCS_Node* Parent, const FVector& Location)
{
	USCS_Node* const Node = Blueprint->SimpleConstructionScript->CreateNode(Class, Name);
	if (USceneComponent* const Template = Cast<USceneComponent>(Node->ComponentTemplate))
	{
		Template->SetRelativeLocation(Location);
	}
	if (Parent)
	{
		Parent->AddChildNode(Node);
	}
	else
	{
		Blueprint->SimpleConstructionScript->AddNode(Node);
	}
	return Node;
}

FGraphMaker FBlueprintMaker::Function(FName Name)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	return FGraphMaker(Graph);
}

void FBlueprintMaker::Parameter(UK2Node* EntryOrResult, FName Name, const FEdGraphPinType& Type)
{
	UK2Node_EditablePinBase* const Node = CastChecked<UK2Node_EditablePinBase>(EntryOrResult);
	Node->CreateUserDefinedPin(Name, Type, Node->IsA<UK2Node_FunctionEntry>() ? EGPD_Output : EGPD_Input);
}

FGraphMaker FBlueprintMaker::Events() const
{
	return FGraphMaker(FBlueprintEditorUtils::FindEventGraph(Blueprint));
}

void FBlueprintMaker::Compile() const
{
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	checkf(Blueprint->Status == BS_UpToDate, TEXT("%s has errors or warnings"), *Blueprint->GetPathName());
}

void FBlueprintMaker::Save() const
{
	Compile();
	SaveAsset(Blueprint);
}
