// The interfaces that Blueprints implement.

#include "EdGraphSchema_K2.h"
#include "EngineLogs.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
UClass* FindClass(const FTopLevelAssetPath& Path)
{
	return FindObject<UClass>(nullptr, *Path.ToString());
}

/** A function without anything to give back is an event, for which the Blueprint has a node, not a graph. */
bool NeedsGraph(const UFunction& Function)
{
	return Function.HasAnyFunctionFlags(FUNC_BlueprintEvent) && Function.HasAnyFunctionFlags(FUNC_HasOutParms | FUNC_Const);
}

FBPInterfaceDescription* FindInterface(UBlueprint* Blueprint, const UClass* Interface)
{
	return Blueprint->ImplementedInterfaces.FindByPredicate(
		[Interface](const FBPInterfaceDescription& Each) { return Each.Interface == Interface; });
}

UEdGraph* MakeInterfaceGraph(UBlueprint* Blueprint, UFunction& Function, UClass* Interface)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, Function.GetFName(), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	if (Graph)
	{
		Graph->bAllowDeletion = false;
		Graph->bAllowRenaming = false;
		GetDefault<UEdGraphSchema_K2>()->CreateFunctionGraphTerminators(*Graph, Interface);
	}
	return Graph;
}
}

bool FBlueprintEditorUtils::ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName)
{
	return ImplementNewInterface(Blueprint, FindClass(InterfaceClassPathName));
}

bool FBlueprintEditorUtils::ImplementNewInterface(UBlueprint* Blueprint, UClass* InterfaceClass)
{
	if (!InterfaceClass || !InterfaceClass->HasAnyClassFlags(CLASS_Interface) || DoesBlueprintImplementInterface(Blueprint, InterfaceClass))
	{
		UE_LOG(LogBlueprint, Warning, TEXT("%s can't implement %s: it is no interface, or implemented already"), *Blueprint->GetPathName(),
			*GetPathNameSafe(InterfaceClass));
		return false;
	}
	Blueprint->Modify();
	FBPInterfaceDescription Description;
	Description.Interface = InterfaceClass;
	for (TFieldIterator<UFunction> Function(InterfaceClass); Function; ++Function)
	{
		UEdGraph* const Graph = NeedsGraph(**Function) ? MakeInterfaceGraph(Blueprint, **Function, InterfaceClass) : nullptr;
		if (Graph)
		{
			Description.Graphs.Add(Graph);
		}
	}
	Blueprint->ImplementedInterfaces.Add(MoveTemp(Description));
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::RemoveInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName, bool bPreserveFunctions)
{
	const UClass* const Interface = FindClass(InterfaceClassPathName);
	FBPInterfaceDescription* const Found = Interface ? FindInterface(Blueprint, Interface) : nullptr;
	if (!Found)
	{
		return;
	}
	Blueprint->Modify();
	const TArray<TObjectPtr<UEdGraph>> Graphs = Found->Graphs;
	Blueprint->ImplementedInterfaces.RemoveAll([=](const FBPInterfaceDescription& Each) { return Each.Interface == Interface; });
	for (UEdGraph* const Graph : Graphs)
	{
		if (bPreserveFunctions)
		{
			Graph->Modify();
			Graph->bAllowDeletion = true;
			Graph->bAllowRenaming = true;
			Blueprint->FunctionGraphs.Add(Graph);
		}
		else
		{
			RemoveGraph(Blueprint, Graph);
		}
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

bool FBlueprintEditorUtils::DoesBlueprintImplementInterface(const UBlueprint* Blueprint, const UClass* Interface)
{
	const UClass* const Parent = Blueprint->ParentClass;
	return FindInterface(const_cast<UBlueprint*>(Blueprint), Interface) || (Parent && Parent->ImplementsInterface(Interface));
}
