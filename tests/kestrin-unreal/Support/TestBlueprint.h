#pragma once

#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node.h"
#include "Support/TestProject.h"

#include <gtest/gtest.h>

/** The editor's modules, and nothing in memory or in the undo buffer at the beginning and at the end. The project is open before. */
class FCleanEditor
{
public:
	FCleanEditor();
	~FCleanEditor();
	UE_NONCOPYABLE(FCleanEditor)

	/** Drops all assets from memory; what is saved can be loaded again. */
	static void Forget();
};

class FBlueprintTest : public testing::Test
{
protected:
	static void Forget() { FCleanEditor::Forget(); }

	FTestProject Project;
	FCleanEditor Editor;
};

FEdGraphPinType PinType(FName Category, UObject* Object = nullptr, EPinContainerType Container = EPinContainerType::None);

/** Writes an asset into its package's file. @return whether that could be done */
bool SaveAsset(UObject* Asset);

/** A node in a graph, made as the editor does it. */
template <typename NodeType>
NodeType* AddNode(
	UEdGraph* Graph, TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
{
	FGraphNodeCreator<NodeType> Creator(*Graph);
	NodeType* const Node = Creator.CreateNode(false);
	Prepare(*Node);
	Creator.Finalize();
	return Node;
}
UK2Node* AddCall(UEdGraph* Graph, UClass* Class, const TCHAR* Function);
UK2Node* AddGet(UEdGraph* Graph, const TCHAR* Variable);
UK2Node* AddCustomEvent(UEdGraph* Graph, const TCHAR* Name);
/** By the names of the pins; the test fails when they do not fit. */
void Link(UK2Node* From, const TCHAR* Output, UK2Node* To, const TCHAR* Input);

/** A Blueprint in the making. */
class FTestBlueprint
{
public:
	/** @param PackageName as in "/Game/Doors/BP_Door" */
	explicit FTestBlueprint(const TCHAR* PackageName, UClass* Parent = UObject::StaticClass(), EBlueprintType Type = BPTYPE_Normal);

	UBlueprint* operator->() const { return Blueprint; }
	UBlueprint* Get() const { return Blueprint; }
	UClass* GetClass() const { return Blueprint->GeneratedClass; }

	void AddVariable(const TCHAR* Name, const FEdGraphPinType& Type, const TCHAR* Default = TEXT("")) const;
	/** With an entry node; parameters go to AddParameter. */
	UEdGraph* AddFunction(const TCHAR* Name) const;
	/** @param bOutput the function gets a result node with it */
	static void AddParameter(UEdGraph* Function, const TCHAR* Name, const FEdGraphPinType& Type, bool bOutput = false);
	/** The page of events, without the nodes that a new Blueprint has there. */
	UEdGraph* MakeEmptyEventGraph() const;
	void Compile() const;
	/** Compiles and saves. */
	void Save() const;

private:
	UBlueprint* Blueprint;
};
