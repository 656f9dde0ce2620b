#pragma once

#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "K2Node.h"

class UActorComponent;
class UK2Node_CustomEvent;
class UK2Node_Event;
class UK2Node_FunctionEntry;

/** A graph in the making: nodes stand where they are put, in pixels, and are linked by the names of their pins. */
class FGraphMaker
{
public:
	explicit FGraphMaker(UEdGraph* InGraph)
		: Graph(InGraph)
	{
	}

	UEdGraph* GetGraph() const { return Graph; }
	UK2Node* Get(FName Variable, int32 X, int32 Y) const;
	UK2Node* Set(FName Variable, int32 X, int32 Y) const;
	/** A call to a function of a class, static or not; on the Blueprint itself when Class is null. */
	UK2Node* Call(UClass* Class, FName Function, int32 X, int32 Y) const;
	UK2Node* Branch(int32 X, int32 Y) const;
	/** The event of the parent class, which the graph may have as a disabled node. */
	UK2Node* Event(UClass* Class, FName Function, int32 X, int32 Y) const;
	UK2Node* CustomEvent(FName Name, int32 X, int32 Y) const;
	/** The function's own nodes. */
	UK2Node* Entry() const;
	UK2Node* Result(int32 X, int32 Y) const;

	static void Link(UK2Node* From, FName Output, UK2Node* To, FName Input);
	/** The execution goes from each node to the next. */
	static void Chain(const TArray<UK2Node*>& Nodes);
	static void SetValue(UK2Node* Node, FName Pin, const FString& Value);

private:
	UBlueprint* GetBlueprint() const;

	UEdGraph* Graph;
};

/** A Blueprint in the making. */
class FBlueprintMaker
{
public:
	FBlueprintMaker(const TCHAR* Path, UClass* Parent, EBlueprintType Type = BPTYPE_Normal);
	/** One of another kind, such as an animation Blueprint. */
	FBlueprintMaker(const TCHAR* Path, UClass* Parent, EBlueprintType Type, UClass* BlueprintClass, UClass* GeneratedClass);

	UBlueprint* operator->() const { return Blueprint; }
	UBlueprint* Get() const { return Blueprint; }
	UClass* GetClass() const { return Blueprint->GeneratedClass; }

	FBPVariableDescription& Variable(
		FName Name, const FEdGraphPinType& Type, const TCHAR* Default = TEXT(""), const TCHAR* Category = TEXT("Default"));
	/** @param Parent null for root level */
	USCS_Node* Component(FName Name, UClass* Class, USCS_Node* Parent = nullptr, const FVector& Location = FVector::ZeroVector);
	/** Parameters go to its entry and result. */
	FGraphMaker Function(FName Name);
	static void Parameter(UK2Node* EntryOrResult, FName Name, const FEdGraphPinType& Type);
	/** The page of events that every Blueprint has. */
	FGraphMaker Events() const;

	/** Ends the program when there are errors or warnings. */
	void Compile() const;
	void Save() const;

private:
	UBlueprint* Blueprint;
};
