#pragma once

#include "Agent/BlueprintUtils.h"
#include "AssetRegistry/AssetData.h"
#include "EdGraph/EdGraphNode.h"
#include "Support/TestProject.h"

/** The parts of the plug-in's Blueprint code that only it can call itself; documents are given and taken as text. */
struct FKestrinBlueprintUtilsTestAccess
{
	using FUtils = FKestrinBlueprintUtils;

	static UBlueprint* FindBlueprint(const FString& Name) { return FUtils::GetBlueprintFromtBlueprintName(Name); }
	static UClass* FindClass(const FString& Name) { return FUtils::GetBlueprintClassFromBlueprintName(Name); }
	static UClass* GetClass(const FAssetData& Asset) { return FUtils::GetBlueprintClassFromAssetData(Asset); }
	static UBehaviorTree* FindBehaviorTree(const FString& Name) { return FUtils::GetBehaviorTreeFromBehaviorTreeName(Name); }
	static UClass* FindNativeClass(UClass* Class) { return FUtils::FindFirstCppImplementedParentClass(Class); }

	static std::string Write(const FEdGraphPinType& Type) { return ToText(FUtils::ConvertEdGraphPinTypeToJson(Type)); }
	static std::string Write(FProperty* Property) { return ToText(FUtils::GetVarJSonObjectFromProperty(Property)); }
	/** Of an object with a pin type object in it. */
	static FEdGraphPinType ReadPinType(std::string_view Json) { return FUtils::ConvertJsonToEdGraphPinType(Parse(Json)); }
	/** Of a property type object. */
	static FEdGraphPinType ReadPropertyType(std::string_view Json)
	{
		const TSharedPtr<FJsonObject> Object = Parse(Json);
		return FUtils::GetVarEdGraphPinTypeFromJSonObject(&Object);
	}
	static std::string GetValue(void* Container, FProperty* Property)
	{
		return ToUtf8(FUtils::GetPropertyValueAsString(Container, Property));
	}
	static std::string ReadGraph(const UEdGraph* Graph) { return ToText(FUtils::ReadEdGraph(Graph)); }

	using FSectionOperation = bool (*)(UBlueprint*, const TArray<TSharedPtr<FJsonValue>>&, TSharedPtr<FJsonObject>&);
	static constexpr FSectionOperation Functions = &FUtils::ModifyBlueprintFunctions;
	static constexpr FSectionOperation Graphs = &FUtils::ModifyBlueprintGraphs;
	static constexpr FSectionOperation Components = &FUtils::ModifyBlueprintComponents;
	static constexpr FSectionOperation Interfaces = &FUtils::ModifyBlueprintInterfaces;
	static constexpr FSectionOperation Delegates = &FUtils::ModifyBlueprintDelegates;
	static constexpr FSectionOperation Timelines = &FUtils::ModifyBlueprintTimelines;
	static constexpr FSectionOperation Animations = &FUtils::ModifyBlueprintAnimations;
	/** @return "changed " or "same ", and the result object */
	static std::string Apply(FSectionOperation Operation, UBlueprint* Blueprint, std::string_view Entries);
	static UEdGraphNode* CreateNode(std::string_view Entry, UEdGraph* Graph) { return FUtils::CreateEdGraphNode(Parse(Entry), Graph); }
	static bool ModifyNode(UEdGraphNode* Node, std::string_view Entry)
	{
		return FUtils::ModifyNodeProperties(Node, *Parse(Entry), Node ? Node->GetGraph() : nullptr);
	}

private:
	static std::string ToText(const TSharedPtr<FJsonObject>& Json) { return ToUtf8(FUtils::SerializeJson(Json)); }
	static TSharedPtr<FJsonObject> Parse(std::string_view Json);
};
using FAccess = FKestrinBlueprintUtilsTestAccess;

/** A document read back. The test fails when it is none. */
TSharedPtr<FJsonObject> ParseDocument(std::string_view Json);
