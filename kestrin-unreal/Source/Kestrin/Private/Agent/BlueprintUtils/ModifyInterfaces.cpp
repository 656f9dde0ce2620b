#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"
#include "UObject/Interface.h"

// The interfaces that a Blueprint implements, each with empty graphs for the functions that the entry names.

namespace
{
const FEntrySection InterfaceSection = { TEXT("InterfaceModifications"), false, TEXT("Interface entry missing 'Name' field.") };

void AddFunctionGraphs(FSectionWork& Work, const FSectionEntry& Entry, FBPInterfaceDescription& Interface)
{
	ForEachObject(Entry.Json, TEXT("Functions"),
		[&](const TSharedPtr<FJsonObject>& Function)
		{
		FString Name;
		if (!Function->TryGetStringField(TEXT("Name"), Name))
		{
			return;
		}
		const FString GraphName = FString::Printf(TEXT("%s_%s"), *Entry.Name, *Name);
		if (UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
				Work.Blueprint, FName(*GraphName), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass()))
		{
			Interface.Graphs.Add(Graph);
			Work.bChanged = true;
			Work.Say(FString::Printf(TEXT("Created interface function: %s"), *Name));
		}
	});
}
}

bool FKestrinBlueprintUtils::ModifyBlueprintInterfaces(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, InterfaceSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		UClass* const Class = Cast<UClass>(StaticFindObject(UClass::StaticClass(), nullptr, *Entry.Name, false));
		if (!Class || !Class->IsChildOf(UInterface::StaticClass()))
		{
			Work.Say(FString::Printf(TEXT("Interface class not found: %s"), *Entry.Name));
			return;
		}
		TArray<FBPInterfaceDescription>& Implemented = Work.Blueprint->ImplementedInterfaces;
		if (Implemented.ContainsByPredicate([Class](const FBPInterfaceDescription& Each) { return Each.Interface == Class; }))
		{
			Work.Say(FString::Printf(TEXT("Interface already implemented: %s"), *Entry.Name));
			return;
		}
		FBPInterfaceDescription Interface;
		Interface.Interface = Class;
		AddFunctionGraphs(Work, Entry, Interface);
		Implemented.Add(Interface);
		Work.bChanged = true;
		Work.Say(FString::Printf(TEXT("Added interface: %s"), *Entry.Name));
	});
}
