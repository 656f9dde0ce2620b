#include "Kismet2/KismetEditorUtilities.h"

#include "BlueprintCompilationManager.h"
#include "Components/ActorComponent.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "K2Node_Event.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Misc/ITransaction.h"
#include "UObject/ClassReplacement.h"
#include "UObject/UObjectGlobals.h"

namespace
{
constexpr EObjectFlags AssetFlags = RF_Public | RF_Standalone | RF_Transactional;

struct FDefaultEvent
{
	UClass* (*GetClass)();
	const TCHAR* Name;
};

/** What new Blueprints of a class begin with; of the first class that fits. */
constexpr FDefaultEvent DefaultEvents[] = {
	{ &AActor::StaticClass, TEXT("ReceiveBeginPlay") },
	{ &AActor::StaticClass, TEXT("ReceiveActorBeginOverlap") },
	{ &AActor::StaticClass, TEXT("ReceiveTick") },
	{ &UActorComponent::StaticClass, TEXT("ReceiveBeginPlay") },
	{ &UActorComponent::StaticClass, TEXT("ReceiveTick") },
};

void MakeEventGraph(UBlueprint* Blueprint)
{
	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, UEdGraphSchema_K2::GN_EventGraph, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	Graph->bAllowDeletion = false;
	Blueprint->UbergraphPages.Add(Graph);
	int32 NodePosY = 0;
	for (const FDefaultEvent& Event : DefaultEvents)
	{
		if (Blueprint->ParentClass->IsChildOf(Event.GetClass()))
		{
			FKismetEditorUtilities::AddDefaultEventNode(Blueprint, Graph, FName(Event.Name), Event.GetClass(), NodePosY);
		}
	}
}

void MakeConstructionScripts(UBlueprint* Blueprint)
{
	auto* const Class = CastChecked<UBlueprintGeneratedClass>(Blueprint->GeneratedClass.Get());
	auto* const Script = NewObject<USimpleConstructionScript>(Class, NAME_None, RF_Transactional);
	Blueprint->SimpleConstructionScript = Script;
	Class->SimpleConstructionScript = Script;
	Script->ValidateSceneRootNodes();

	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, UEdGraphSchema_K2::FN_UserConstructionScript, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	Graph->bAllowDeletion = false;
	FBlueprintEditorUtils::AddFunctionGraph(Blueprint, Graph, false, AActor::StaticClass());
}
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(
	UClass* ParentClass, UObject* Outer, FName NewBPName, EBlueprintType BlueprintType, FName CallingContext)
{
	return CreateBlueprint(
		ParentClass, Outer, NewBPName, BlueprintType, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), CallingContext);
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(UClass* ParentClass, UObject* Outer, FName NewBPName, EBlueprintType BlueprintType,
	TSubclassOf<UBlueprint> BlueprintClassType, TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName)
{
	check(ParentClass && Outer && !StaticFindObjectFast(UObject::StaticClass(), Outer, NewBPName));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Outer, BlueprintClassType, NewBPName, AssetFlags);
	Blueprint->Status = BS_BeingCreated;
	Blueprint->BlueprintType = BlueprintType;
	Blueprint->ParentClass = ParentClass;
	Blueprint->GenerateNewGuid();
	UClass* const Kind = BlueprintGeneratedClassType;
	FBlueprintCompilationManager::MakeGeneratedClass(Blueprint, Kind ? Kind : Blueprint->GetBlueprintClass());
	if (BlueprintType != BPTYPE_Interface && BlueprintType != BPTYPE_FunctionLibrary && BlueprintType != BPTYPE_MacroLibrary)
	{
		if (FBlueprintEditorUtils::SupportsConstructionScript(Blueprint))
		{
			MakeConstructionScripts(Blueprint);
		}
		MakeEventGraph(Blueprint);
	}
	CompileBlueprint(Blueprint);
	FBlueprintEditorUtils::MarkBlueprintAsModified(Blueprint);
	return Blueprint;
}

bool FKismetEditorUtilities::CanCreateBlueprintOfClass(const UClass* Class)
{
	if (!Class || Class->HasAnyClassFlags(CLASS_Deprecated) || IsRetiredClass(Class))
	{
		return false;
	}
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	if (Blueprint && Blueprint->SkeletonGeneratedClass == Class)
	{
		return false;
	}
	const FName Key(TEXT("IsBlueprintBase"));
	for (; Class; Class = Class->GetSuperClass())
	{
		if (Class->HasMetaData(Key))
		{
			return Class->GetMetaData(Key) != TEXT("false");
		}
	}
	return false;
}

void FKismetEditorUtilities::CompileBlueprint(UBlueprint* BlueprintObj, EBlueprintCompileOptions, FCompilerResultsLog* pResults)
{
	FCompilerResultsLog Own;
	Own.SetSourcePath(BlueprintObj->GetPathName());
	FBlueprintCompilationManager::CompileSynchronously(BlueprintObj, pResults ? *pResults : Own);
}

bool FKismetEditorUtilities::GenerateBlueprintSkeleton(UBlueprint* BlueprintObj, bool bForceRegeneration)
{
	if (!BlueprintObj->SkeletonGeneratedClass || bForceRegeneration)
	{
		FBlueprintCompilationManager::GenerateSkeleton(BlueprintObj);
	}
	return BlueprintObj->SkeletonGeneratedClass != nullptr;
}

UK2Node_Event* FKismetEditorUtilities::AddDefaultEventNode(
	UBlueprint* InBlueprint, UEdGraph* InGraph, FName InEventName, UClass* InEventClass, int32& InOutNodePosY)
{
	TArray<UK2Node_Event*> Events;
	FBlueprintEditorUtils::GetAllNodesOfClass(InBlueprint, Events);
	const bool bThere = Events.ContainsByPredicate(
		[InEventName](const UK2Node_Event* Event) { return Event->bOverrideFunction && Event->GetFunctionName() == InEventName; });
	if (bThere || !InEventClass->FindFunctionByName(InEventName))
	{
		return nullptr;
	}
	constexpr int32 RowHeight = 208;
	FGraphNodeCreator<UK2Node_Event> Creator(*InGraph);
	UK2Node_Event* const Event = Creator.CreateNode(false);
	Event->EventReference.SetExternalMember(InEventName, InEventClass);
	Event->bOverrideFunction = true;
	Event->NodePosY = InOutNodePosY;
	Creator.Finalize();
	Event->SetEnabledState(ENodeEnabledState::Disabled);
	InOutNodePosY += RowHeight;
	return Event;
}
