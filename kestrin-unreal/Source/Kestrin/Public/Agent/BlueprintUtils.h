#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "EdGraph/EdGraphPin.h"

class FProperty;
class UBehaviorTree;
class UBlueprint;
class UClass;
class UEdGraph;
class UEdGraphNode;
struct FAssetData;
struct FSectionEntry;
struct FSectionWork;

/**
 * How the assistant sees Blueprints and behavior trees, and makes, changes, saves and compiles Blueprints. Assets go by their short names,
 * ignoring case; of several with one name the first that the Asset Registry lists is meant. Answers are condensed JSON with keys in
 * a fixed order, but for CreateBlueprintAsset; a failure is a document with the single key "Error". Game thread.
 */
class KESTRIN_API FKestrinBlueprintUtils
{
public:
	/**
	 * {Name, Path, SuperClass, Variables, Functions, Components, Interfaces, Graphs}. The settings' content filter says which
	 * variables and functions count.
	 * @param DataSubset "All", or the one section to give beside the first three keys
	 */
	static FString ReadBlueprint(const FString& BlueprintName, FString DataSubset);
	/** {Name, Path, Blackboard, RootNode}. The settings' content filter says which properties of nodes count. */
	static FString ReadBehaviorTree(const FString& BehaviorTreeName);

	/**
	 * The new Blueprint is neither saved nor compiled.
	 * @param PackagePath the folder, as in "/Game/Doors"
	 * @param ParentClassName the short name of a native class or of a Blueprint
	 * @return a line that begins with "Success:" or "Error:"
	 */
	static FString CreateBlueprintAsset(const FString& PackagePath, const FString& BlueprintName, const FString& ParentClassName);
	/**
	 * Changes, compiles and saves a Blueprint, inside one transaction.
	 * @param Document {Variables: {Name: {Type, Replication, Category, Tooltip, Value, ExposeOnSpawn, Private, SaveGame}},
	 *        Functions: [{Name, InParams, OutParams, EdGraph: {Nodes}}]}; other keys, and a section of another type, are passed over
	 * @return {VariableModifications: [], FunctionModifications: [], and one of Success, Message (nothing changed) or Error}
	 */
	static FString ModifyBlueprint(const FString& BlueprintName, const FString& Document);
	/** @return {Success} or {Error} */
	static FString SaveBlueprint(UObject* Object);
	/** Warnings count as a failure. @return {Success} or {Error} */
	static FString CompileBlueprint(UObject* Object);
	/** Loads every Blueprint of the project to look whether it is dirty. @return {BlueprintResults: [], Success or Error} */
	static FString SaveAndCompileAllDirtyBlueprints();

private:
	friend struct FKestrinBlueprintUtilsTestAccess;

	// Assets by short name; null when there is none, or none that loads.
	static UBlueprint* GetBlueprintFromtBlueprintName(const FString& BlueprintName);
	/** Native classes are found, too, and before Blueprints. */
	static UClass* GetBlueprintClassFromBlueprintName(const FString& BlueprintName);
	static UClass* GetBlueprintClassFromAssetData(const FAssetData& AssetData);
	static UBehaviorTree* GetBehaviorTreeFromBehaviorTreeName(const FString& BehaviorTreeName);
	static UClass* FindFirstCppImplementedParentClass(UClass* Class);

	// The pin type object: {Category, SubCategory, SubCategoryObject, Container, ValueType, Flags}.
	static TSharedPtr<FJsonObject> ConvertEdGraphPinTypeToJson(const FEdGraphPinType& PinType);
	/** Reads the pin type object that stands under the key "Type". What is missing or unknown stays at its default. */
	static FEdGraphPinType ConvertJsonToEdGraphPinType(const TSharedPtr<FJsonObject>& JsonObject);
	static FEdGraphPinType ConvertPropertyToEdGraphPinType(const FProperty* Property);
	static TSharedPtr<FJsonObject> GetVarJSonObjectFromProperty(FProperty* Property);

	/**
	 * Reads a property type object: {Type: "BoolProperty", ...} with EnumType, StructType, PropertyClass or InnerType where the type
	 * needs it. @return the default pin type for what is unknown
	 */
	static FEdGraphPinType GetVarEdGraphPinTypeFromJSonObject(const TSharedPtr<FJsonObject>* JsonObject);

	/** @param Container the object or struct that holds the property */
	static FString GetPropertyValueAsString(void* Container, FProperty* Property);

	/** {Name, Class, Nodes: [{Title, Class, Properties, Pins}]} */
	static TSharedPtr<FJsonObject> ReadEdGraph(const UEdGraph* Graph);

	/**
	 * {Property name: {Type, Value}} of those that pass the settings' content filter, the class's own before those of its super classes.
	 * @param Container an object of the class
	 */
	static TSharedPtr<FJsonObject> ReadProperties(const UClass* Class, UObject* Container);

	// The sections of a modification document. Each puts its messages into the result, says with "Error" why it can't work on the
	// Blueprint, and answers whether anything changed. What one entry does never stops the next.
	using FSectionEntries = TArray<TSharedPtr<FJsonValue>>;
	static bool ModifyBlueprintVariables(UBlueprint* Blueprint, const FJsonObject& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintFunctions(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintGraphs(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintComponents(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintInterfaces(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintDelegates(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintTimelines(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);
	static bool ModifyBlueprintAnimations(UBlueprint* Blueprint, const FSectionEntries& Section, TSharedPtr<FJsonObject>& Result);

	/** A graph of that name is left alone. @param FunctionName "OnRep_" and the variable's name */
	static void CreateRepNotifyFunction(UBlueprint* Blueprint, const FString& FunctionName);
	/** With its parameters. @return null when the engine refuses the name */
	static UEdGraph* CreateFunction(FSectionWork& Work, const FSectionEntry& Entry);
	/** The nodes under the key "Nodes", each with its links before the next. @return whether anything was set on one of them */
	static bool AddNodes(const FJsonObject& Parent, UEdGraph* Graph);
	/** @param Entry {Class, Location, Properties} @return null for what can't be made */
	static UEdGraphNode* CreateEdGraphNode(const TSharedPtr<FJsonObject>& Entry, UEdGraph* Graph);
	/**
	 * @param Entry {Properties: {Comment, Pins: [{PinName, Value, Direction, Connections: [{Node, Pin}]}]}}
	 * @return whether anything was set
	 */
	static bool ModifyNodeProperties(UEdGraphNode* Node, const FJsonObject& Entry, UEdGraph* Graph);

	static FString SerializeJson(const TSharedPtr<FJsonObject>& JsonObject);
	/** A document with a single key. */
	static FString SerializeMessage(const TCHAR* Key, const FString& Message);

	struct FBlueprintReader;
	struct FBehaviorTreeReader;
};
