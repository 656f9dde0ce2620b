#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"

// Pages of events.

namespace
{
const FEntrySection GraphSection = { TEXT("GraphModifications"), true, TEXT("Graph entry missing 'Name' or 'Type' field.") };
}

bool FKestrinBlueprintUtils::ModifyBlueprintGraphs(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, GraphSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		if (!Entry.Type.Equals(TEXT("EventGraph"), ESearchCase::IgnoreCase))
		{
			Work.Say(FString::Printf(TEXT("Invalid graph type: %s"), *Entry.Type));
			return;
		}
		if (UEdGraph* const Existing = FindByNameText(Work.Blueprint->UbergraphPages, Entry.Name))
		{
			Work.bChanged |= AddNodes(Entry.Json, Existing);
			Work.Say(FString::Printf(TEXT("Modified existing graph: %s"), *Entry.Name));
			return;
		}
		UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
			Work.Blueprint, FName(*Entry.Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		if (!Graph)
		{
			Work.Say(FString::Printf(TEXT("Failed to create graph: %s"), *Entry.Name));
			return;
		}
		FBlueprintEditorUtils::AddUbergraphPage(Work.Blueprint, Graph);
		AddNodes(Entry.Json, Graph);
		Work.bChanged = true;
		Work.Say(FString::Printf(TEXT("Created new graph: %s of type %s"), *Entry.Name, *Entry.Type));
	});
}
