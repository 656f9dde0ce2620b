#pragma once

#include "Dom/JsonObject.h"
#include "UObject/ObjectPtr.h"

class UBlueprint;
class UEdGraph;
class UK2Node_FunctionEntry;
struct FBPVariableDescription;

// What all sections of a modification document have in common, so that each section's file holds its own walk alone.

/** One section at work on one Blueprint. */
struct FSectionWork
{
	UBlueprint* Blueprint;
	/** Something changed that the Blueprint's compile and its file have to follow. */
	bool bChanged = false;
	/** Strings, in the order in which they arose. */
	TArray<TSharedPtr<FJsonValue>> Messages;

	void Say(const FString& Message) { Messages.Add(MakeShared<FJsonValueString>(Message)); }
};

/** An entry that has what every entry of its section needs. */
struct FSectionEntry
{
	const FJsonObject& Json;
	FString Name;
	/** Empty where entries need none. */
	FString Type;
};

/** How a section of entries differs from the others, beside its walk. */
struct FEntrySection
{
	/** The messages' key in the result object. */
	const TCHAR* ResultKey;
	/** Whether an entry needs a "Type" beside its "Name". */
	bool bNeedsType;
	/** For an entry without them, or one that is no object. */
	const TCHAR* IncompleteEntry;
	/** Why the section can't work on a Blueprint, null when it can; none for one that can work on any. */
	const TCHAR* (*FindObstacle)(const UBlueprint& Blueprint) = nullptr;
};

/**
 * Applies a section to a Blueprint, and puts what it said into the result object. Without a Blueprint, or with an obstacle, the result
 * gets an "Error" and nothing is touched.
 * @return whether anything changed
 */
bool ApplySection(UBlueprint* Blueprint, FJsonObject& Result, const TCHAR* ResultKey, TFunctionRef<void(FSectionWork&)> Walk,
	const TCHAR* (*FindObstacle)(const UBlueprint& Blueprint) = nullptr);

/** The same with each entry in turn. */
bool ApplyEntries(UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Entries, FJsonObject& Result, const FEntrySection& Section,
	TFunctionRef<void(FSectionWork&, const FSectionEntry&)> ApplyEntry);

/** The elements of an array member that are objects; none when the member is no array. */
void ForEachObject(const FJsonObject& Parent, const TCHAR* Key, TFunctionRef<void(const TSharedPtr<FJsonObject>&)> Visit);

/** By its name as text, ignoring case; the first one, or null. */
template <typename ObjectType>
ObjectType* FindByNameText(const TArray<TObjectPtr<ObjectType>>& Objects, const FString& Name)
{
	const TObjectPtr<ObjectType>* const Found = Objects.FindByPredicate(
		[&Name](const ObjectType* Object) { return Object && Object->GetName().Equals(Name, ESearchCase::IgnoreCase); });
	return Found ? Found->Get() : nullptr;
}

/** The Blueprint's own member variable, or null. */
FBPVariableDescription* FindVariable(UBlueprint& Blueprint, FName Name);

/** The first one among the graph's nodes, or null. */
UK2Node_FunctionEntry* FindFunctionEntry(const UEdGraph& Graph);
