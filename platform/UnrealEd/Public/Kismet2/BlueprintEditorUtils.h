#pragma once

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "UObject/TopLevelAssetPath.h"

class UEdGraphSchema;

/** What editors do with Blueprints. Each operation records what it changes in the open transaction. Game thread. */
class UNREALED_API FBlueprintEditorUtils
{
public:
	// Variables. They are found by name, ignoring case.

	/**
	 * Refuses, with a log line, a name that is none or too long, one that the Blueprint has for a variable, component or timeline, and one
	 * that a parent class has for a property. An actor can't be a default.
	 * @param DefaultValue text for the class default object
	 */
	static bool AddMemberVariable(
		UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue = FString());
	/** Nodes that use it are removed, too. */
	static void RemoveMemberVariable(UBlueprint* Blueprint, FName VarName);
	/** Nodes that use it follow. Refuses, with a log line, what AddMemberVariable refuses. */
	static void RenameMemberVariable(UBlueprint* Blueprint, FName OldName, FName NewName);
	static void ChangeMemberVariableType(UBlueprint* Blueprint, FName VariableName, const FEdGraphPinType& NewPinType);
	/** In NewVariables; INDEX_NONE when there is none. */
	static int32 FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName);
	/** EPropertyFlags, null for an unknown variable. */
	static uint64* GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName);
	static void SetVariableSaveGameFlag(UBlueprint* Blueprint, const FName& VarName, bool bInSaveGame);
	static void SetBlueprintOnlyEditableFlag(UBlueprint* Blueprint, const FName& VarName, bool bNewBlueprintOnly);
	static void SetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName, const FName& RepNotifyFunc);
	static void SetBlueprintVariableCategory(
		UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile = false);
	/** @param InLocalVarScope the function whose local variable is meant; null for a member */
	static void SetBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope,
		const FName& MetaDataKey, const FString& MetaDataValue);
	/** @return whether the variable has the key */
	static bool GetBlueprintVariableMetaData(const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope,
		const FName& MetaDataKey, FString& OutMetaDataValue);
	static void RemoveBlueprintVariableMetaData(
		UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey);
	/** A variable name that is free, from InBaseName and a number where one is needed. */
	static FName FindUniqueKismetName(const UBlueprint* InBlueprint, const FString& InBaseName);

	// Graphs.

	/**
	 * @param ParentScope the Blueprint, or the graph that it is to be below
	 * @return null, with a log line, for a name that is none or too long, or that an object in ParentScope has
	 */
	static UEdGraph* CreateNewGraph(
		UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass);
	/**
	 * Makes a new graph the Blueprint's function: with an entry node, and a result node once there is something to return.
	 * @param bIsUserCreated parameters can be added to the entry node, also by the user
	 * @param SignatureFromObject a function, or a class with a function of the graph's name; null for a new signature
	 */
	template <typename SignatureType>
	static void AddFunctionGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, SignatureType* SignatureFromObject)
	{
		if constexpr (std::is_base_of_v<UClass, SignatureType>)
		{
			AddFunctionGraphOfClass(Blueprint, Graph, bIsUserCreated, SignatureFromObject);
		}
		else
		{
			AddFunctionGraphLike(Blueprint, Graph, bIsUserCreated, SignatureFromObject);
		}
	}
	static void AddUbergraphPage(UBlueprint* Blueprint, UEdGraph* Graph);
	/** With the graphs below it. */
	static void RemoveGraph(UBlueprint* Blueprint, UEdGraph* GraphToRemove);
	/** Refuses a name that is taken. Nodes that call the function follow. */
	static void RenameGraph(UEdGraph* Graph, const FString& NewNameStr);
	static void RemoveNode(UBlueprint* Blueprint, UEdGraphNode* Node, bool bDontRecompile = false);
	/** Whether no object directly in Outer has it. */
	static bool IsGraphNameUnique(UObject* Outer, const FName& InName);
	static void GetAllGraphs(const UBlueprint* Blueprint, TArray<UEdGraph*>& OutGraphs) { Blueprint->GetAllGraphs(OutGraphs); }
	/** The first page of events, or null. */
	static UEdGraph* FindEventGraph(const UBlueprint* Blueprint);
	static UEdGraph* FindUserConstructionScript(const UBlueprint* Blueprint);
	/** All graphs' nodes of a class. */
	template <typename NodeType>
	static void GetAllNodesOfClass(const UBlueprint* Blueprint, TArray<NodeType*>& OutNodes)
	{
		TArray<UEdGraph*> Graphs;
		GetAllGraphs(Blueprint, Graphs);
		for (const UEdGraph* const Graph : Graphs)
		{
			Graph->GetNodesOfClass(OutNodes);
		}
	}
	/** Null for a graph outside of any. */
	static UBlueprint* FindBlueprintForGraph(const UEdGraph* Graph);
	static UBlueprint* FindBlueprintForNode(const UEdGraphNode* Node);
	/** The same for what must have one. */
	static UBlueprint* FindBlueprintForGraphChecked(const UEdGraph* Graph);
	static UBlueprint* FindBlueprintForNodeChecked(const UEdGraphNode* Node);
	/** Makes the pins of all nodes anew, where what they refer to may have changed. */
	static void RefreshAllNodes(UBlueprint* Blueprint);

	// Interfaces.

	/** With a graph for each function that has a result; the others are events. @return false for one that is no interface, or there
	 * already */
	static bool ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName);
	static bool ImplementNewInterface(UBlueprint* Blueprint, UClass* InterfaceClass);
	/** @param bPreserveFunctions the graphs become the Blueprint's own functions */
	static void RemoveInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName, bool bPreserveFunctions = false);
	static bool DoesBlueprintImplementInterface(const UBlueprint* Blueprint, const UClass* Interface);

	// Timelines.

	/** @return null when the Blueprint has one of that variable name, or is no actor's */
	static UTimelineTemplate* AddNewTimeline(UBlueprint* Blueprint, const FName& TimelineVarName);
	static void RemoveTimeline(UBlueprint* Blueprint, UTimelineTemplate* Timeline, bool bDontRecompile = false);
	static UTimelineTemplate* FindTimelineTemplate(const UBlueprint* Blueprint, FName TimelineVarName);
	static bool DoesSupportTimelines(const UBlueprint* Blueprint);

	// State.

	/** The skeleton is made anew for the next who asks for it; a compile is needed. */
	static void MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint);
	/** A compile is needed; the package is dirty. */
	static void MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent* PropertyChangedEvent = nullptr);
	/** Up to date, or null when there is none. */
	static UClass* GetSkeletonClass(const UBlueprint* Blueprint);
	/** The class most up to date: the skeleton, or the generated one where there is none. */
	static UClass* GetMostUpToDateClass(UClass* FromClass);
	static bool IsActorBased(const UBlueprint* Blueprint);
	static bool IsInterfaceBlueprint(const UBlueprint* Blueprint) { return Blueprint->BlueprintType == BPTYPE_Interface; }
	static bool SupportsConstructionScript(const UBlueprint* Blueprint) { return IsActorBased(Blueprint); }

private:
	static void AddFunctionGraphOfClass(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UClass* SignatureClass);
	static void AddFunctionGraphLike(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* SignatureFunction);
};
