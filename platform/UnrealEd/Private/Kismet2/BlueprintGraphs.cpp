// The graphs of Blueprints.

#include "EdGraphSchema_K2.h"
#include "EditorNames.h"
#include "EngineLogs.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_FunctionTerminator.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectGlobals.h"

namespace
{
using FUtils = FBlueprintEditorUtils;
using FSchema = UEdGraphSchema_K2;

/** What a Blueprint keeps its graphs in. */
TArray<TArray<TObjectPtr<UEdGraph>>*> GetGraphLists(UBlueprint* Blueprint)
{
	TArray<TArray<TObjectPtr<UEdGraph>>*> Lists = { &Blueprint->UbergraphPages, &Blueprint->FunctionGraphs, &Blueprint->MacroGraphs,
		&Blueprint->DelegateSignatureGraphs };
	for (FBPInterfaceDescription& Interface : Blueprint->ImplementedInterfaces)
	{
		Lists.Add(&Interface.Graphs);
	}
	return Lists;
}

/** Calls from within the Blueprint to its own function. */
TArray<UK2Node_CallFunction*> FindCalls(const UBlueprint* Blueprint, FName Name)
{
	TArray<UK2Node_CallFunction*> Calls;
	FUtils::GetAllNodesOfClass(Blueprint, Calls);
	Calls.RemoveAll(
		[=](const UK2Node_CallFunction* Call)
		{
		const FMemberReference& Reference = Call->FunctionReference;
		const bool bOwn = Reference.IsSelfContext() || Reference.GetMemberParentClass() == Blueprint->GeneratedClass;
		return !bOwn || Reference.GetMemberName() != Name;
	});
	return Calls;
}

/** The schema's part of a function graph, a new function being one that others may call. */
template <typename SignatureType>
void MakeTerminators(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, SignatureType* Signature, bool bOverrides)
{
	const FSchema* const Schema = CastChecked<FSchema>(const_cast<UEdGraphSchema*>(Graph->GetSchema()));
	Schema->CreateFunctionGraphTerminators(*Graph, Signature);
	if (!bOverrides)
	{
		const int32 Static = Blueprint->BlueprintType == BPTYPE_FunctionLibrary ? FUNC_Static : FUNC_None;
		Schema->AddExtraFunctionFlags(Graph, FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Public | Static);
	}
	if (bIsUserCreated)
	{
		Schema->MarkFunctionEntryAsEditable(Graph, true);
	}
	Blueprint->Modify();
	Blueprint->FunctionGraphs.Add(Graph);
	FUtils::MarkBlueprintAsStructurallyModified(Blueprint);
}
}

UEdGraph* FBlueprintEditorUtils::CreateNewGraph(
	UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass)
{
	if (!IsUsableName(GraphName) || !IsGraphNameUnique(ParentScope, GraphName))
	{
		UE_LOG(LogBlueprint, Warning, TEXT("%s can't have the graph '%s': %s"), *ParentScope->GetPathName(),
			*GraphName.ToString().Left(100), IsUsableName(GraphName) ? TEXT("the name is taken") : TEXT("it can't be a name"));
		return nullptr;
	}
	UEdGraph* const Graph = NewObject<UEdGraph>(ParentScope, GraphClass, GraphName, RF_Transactional);
	Graph->Schema = SchemaClass;
	Graph->GraphGuid = FGuid::NewGuid();
	return Graph;
}

void FBlueprintEditorUtils::AddFunctionGraphOfClass(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UClass* SignatureClass)
{
	const bool bOverrides = SignatureClass && SignatureClass->FindFunctionByName(Graph->GetFName());
	MakeTerminators(Blueprint, Graph, bIsUserCreated, SignatureClass, bOverrides);
}

void FBlueprintEditorUtils::AddFunctionGraphLike(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* SignatureFunction)
{
	MakeTerminators(Blueprint, Graph, bIsUserCreated, static_cast<const UFunction*>(SignatureFunction), false);
}

void FBlueprintEditorUtils::AddUbergraphPage(UBlueprint* Blueprint, UEdGraph* Graph)
{
	Blueprint->Modify();
	Blueprint->UbergraphPages.Add(Graph);
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::RemoveGraph(UBlueprint* Blueprint, UEdGraph* GraphToRemove)
{
	Blueprint->Modify();
	GraphToRemove->Modify();
	for (TArray<TObjectPtr<UEdGraph>>* const List : GetGraphLists(Blueprint))
	{
		List->Remove(GraphToRemove);
	}
	if (UEdGraph* const Above = Cast<UEdGraph>(GraphToRemove->GetOuter()))
	{
		Above->Modify();
		Above->SubGraphs.Remove(GraphToRemove);
	}
	GraphToRemove->MarkAsGarbage();
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::RenameGraph(UEdGraph* Graph, const FString& NewNameStr)
{
	const FName OldName = Graph->GetFName();
	const FName NewName(NewNameStr);
	UBlueprint* const Blueprint = FindBlueprintForGraphChecked(Graph);
	if (!IsUsableName(NewName) || (OldName != NewName && !IsGraphNameUnique(Graph->GetOuter(), NewName)))
	{
		UE_LOG(LogBlueprint, Warning, TEXT("%s can't be renamed to '%s'"), *Graph->GetPathName(), *NewNameStr.Left(100));
		return;
	}
	const TArray<UK2Node_CallFunction*> Calls = FindCalls(Blueprint, OldName);
	Graph->Rename(*NewNameStr);
	TArray<UK2Node_FunctionTerminator*> Terminators;
	Graph->GetNodesOfClass(Terminators);
	for (UK2Node_FunctionTerminator* const Terminator : Terminators)
	{
		Terminator->Modify();
		Terminator->FunctionReference.SetExternalMember(NewName, Terminator->FunctionReference.GetMemberParentClass());
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
	for (UK2Node_CallFunction* const Call : Calls)
	{
		Call->Modify();
		Call->FunctionReference.SetSelfMember(NewName);
		Call->ReconstructNode();
	}
}

void FBlueprintEditorUtils::RemoveNode(UBlueprint* Blueprint, UEdGraphNode* Node, bool bDontRecompile)
{
	Node->Modify();
	Node->DestroyNode();
	bDontRecompile ? MarkBlueprintAsModified(Blueprint) : MarkBlueprintAsStructurallyModified(Blueprint);
}

bool FBlueprintEditorUtils::IsGraphNameUnique(UObject* Outer, const FName& InName)
{
	return !StaticFindObjectFast(UObject::StaticClass(), Outer, InName);
}

UEdGraph* FBlueprintEditorUtils::FindEventGraph(const UBlueprint* Blueprint)
{
	return Blueprint->UbergraphPages.IsEmpty() ? nullptr : Blueprint->UbergraphPages[0].Get();
}

UEdGraph* FBlueprintEditorUtils::FindUserConstructionScript(const UBlueprint* Blueprint)
{
	const TObjectPtr<UEdGraph>* const Found = Blueprint->FunctionGraphs.FindByPredicate(
		[](const UEdGraph* Graph) { return Graph->GetFName() == FSchema::FN_UserConstructionScript; });
	return Found ? Found->Get() : nullptr;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForGraph(const UEdGraph* Graph)
{
	return Graph ? Graph->GetTypedOuter<UBlueprint>() : nullptr;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForNode(const UEdGraphNode* Node)
{
	return Node ? Node->GetTypedOuter<UBlueprint>() : nullptr;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForGraphChecked(const UEdGraph* Graph)
{
	UBlueprint* const Blueprint = FindBlueprintForGraph(Graph);
	check(Blueprint);
	return Blueprint;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForNodeChecked(const UEdGraphNode* Node)
{
	UBlueprint* const Blueprint = FindBlueprintForNode(Node);
	check(Blueprint);
	return Blueprint;
}

void FBlueprintEditorUtils::RefreshAllNodes(UBlueprint* Blueprint)
{
	TArray<UEdGraphNode*> Nodes;
	GetAllNodesOfClass(Blueprint, Nodes);
	for (UEdGraphNode* const Node : Nodes)
	{
		Node->ReconstructNode();
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}
