#pragma once

#include "EdGraph/EdGraphNode.h"
#include "Engine/MemberReference.h"
#include "K2Node.generated.h"

class FCompilerResultsLog;
class UBlueprint;

/** Keeps the title of a node that refers to a member: titles are asked for again and again when nodes are looked for by them. */
class BLUEPRINTGRAPH_API FNodeTitleCache
{
public:
	/** Null when the title is of another member, or none has been kept. */
	const FText* Find(const FMemberReference& Member) const;
	const FText& Set(const FMemberReference& InMember, const FText& InTitle);
	void MarkDirty() { bSet = false; }

private:
	FMemberReference Member;
	uint32 Spelling = 0;
	FText Title;
	bool bSet = false;
};

/** A node of a Blueprint's graph. */
UCLASS(Abstract)
class BLUEPRINTGRAPH_API UK2Node : public UEdGraphNode
{
	GENERATED_BODY()

public:
	/** Null for a node outside of any Blueprint. */
	UBlueprint* GetBlueprint() const;
	bool HasValidBlueprint() const { return GetBlueprint() != nullptr; }
	/** The class that the node's own members are looked for in: the Blueprint's skeleton, or else its generated class. */
	UClass* GetBlueprintClassFromNode() const;
	/** Whether the node has no execution pins: it runs when something needs what it gives. */
	virtual bool IsNodePure() const { return false; }
	/** The pin by which the node is run, or null. */
	UEdGraphPin* GetExecPin() const;

	/**
	 * Makes the pins anew. A pin of the same name and direction as an old one takes over its links, its value and its id; an old pin that
	 * is gone stays as an orphan as long as it is linked.
	 */
	void ReconstructNode() override;
	/** Makes the new pins, while the old ones still tell what was there. */
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) { AllocateDefaultPins(); }
	virtual void PostReconstructNode() {}
	/** Whether the node refuses a link that the types would allow. */
	virtual bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const { return false; }
	/** Reports what is wrong with the node itself; its links and defaults are the schema's to judge. */
	virtual void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const;

protected:
	/** The pins "execute" and "then". */
	void CreateExecPins();
	/** An input "self", shown as "Target". @param TargetClass null for one that is the graph's own class, whichever that is */
	UEdGraphPin* CreateTargetPin(UClass* TargetClass);
	/** A parameter's pin with its type and default; null when there is no pin for such a type. */
	UEdGraphPin* CreateParameterPin(const UFunction* Function, const FProperty* Parameter, EEdGraphPinDirection Direction);
	/** The inputs of a function as outputs of its entry, or its outputs as inputs of its exit. */
	void CreatePinsForFunctionEntryExit(const UFunction* Function, bool bIsFunctionEntry);
	/** Whether the class is the Blueprint's own or one that it derives from. */
	bool IsOwnClass(const UClass* Class) const;
	/** The class that a class pin has, or of which the pin linked to it has one; null for none. */
	static UClass* GetClassOfPin(const UEdGraphPin* ClassPin);
	/** Deletes pins that have been taken out of Pins, but for those that stay as orphans; see ReconstructNode. */
	void RewireOldPinsToNewPins(const TArray<UEdGraphPin*>& OldPins);

private:
	void ValidateOrphanPins(FCompilerResultsLog& MessageLog) const;
	void ValidateSelfPin(FCompilerResultsLog& MessageLog) const;
};
