#pragma once

#include "EdGraph/EdGraphPin.h"
#include "UObject/UObjectGlobals.h"
#include "EdGraphNode.generated.h"

class UEdGraph;

/** How much of a node's title is asked for. */
namespace ENodeTitleType
{
enum Type : int
{
	/** All of it; may have several lines. */
	FullTitle,
	ListView,
	EditableTitle,
	MenuTitle,
	MAX_TitleTypes,
};
}

UENUM()
enum class ENodeEnabledState : uint8
{
	Enabled,
	Disabled,
	DevelopmentOnly
};

/** A step of a graph. Its pins are its own; they are saved, undone and duplicated with it. */
UCLASS()
class ENGINE_API UEdGraphNode : public UObject
{
	GENERATED_BODY()

public:
	UEdGraphNode() = default;
	~UEdGraphNode() override;

	/** Added and removed with CreatePin and RemovePin. */
	TArray<UEdGraphPin*> Pins;

	UPROPERTY()
	int32 NodePosX = 0;

	UPROPERTY()
	int32 NodePosY = 0;

	UPROPERTY()
	int32 NodeWidth = 0;

	UPROPERTY()
	int32 NodeHeight = 0;

	UPROPERTY()
	FString NodeComment;

	UPROPERTY()
	FGuid NodeGuid;

	UPROPERTY()
	uint8 bCommentBubbleVisible : 1 = 0;

	/** What the last compile said about the node, for the one who looks at it. */
	UPROPERTY()
	uint8 bHasCompilerMessage : 1 = 0;

	UPROPERTY()
	int32 ErrorType = 0;

	UPROPERTY()
	FString ErrorMsg;

	struct FCreatePinParams
	{
		// Written out, for it is a default argument below.
		FCreatePinParams() {}

		/** Where among the node's pins; INDEX_NONE for the end. */
		int32 Index = INDEX_NONE;
		EPinContainerType ContainerType = EPinContainerType::None;
		FEdGraphTerminalType ValueTerminalType;
		bool bIsReference = false;
		bool bIsConst = false;
	};

	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, const FEdGraphPinType& InPinType, FName PinName, int32 Index = INDEX_NONE);
	UEdGraphPin* CreatePin(
		EEdGraphPinDirection Dir, FName PinCategory, FName PinName, const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, FName PinCategory, UObject* PinSubCategoryObject, FName PinName,
		const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, FName PinCategory, FName PinSubCategory, UObject* PinSubCategoryObject, FName PinName,
		const FCreatePinParams& PinParams = FCreatePinParams());
	/** The first of that name and direction, or null. */
	UEdGraphPin* FindPin(FName PinName, EEdGraphPinDirection Direction = EGPD_MAX) const;
	UEdGraphPin* FindPin(const FString& PinName, EEdGraphPinDirection Direction = EGPD_MAX) const
	{
		return FindPin(FName(PinName), Direction);
	}
	UEdGraphPin* FindPin(const TCHAR* PinName, EEdGraphPinDirection Direction = EGPD_MAX) const
	{
		return FindPin(FName(PinName), Direction);
	}
	UEdGraphPin* FindPinChecked(FName PinName, EEdGraphPinDirection Direction = EGPD_MAX) const;
	UEdGraphPin* FindPinById(const FGuid& PinId) const;
	/** Breaks the pin's links and destroys it. @return false for a pin that is not this node's */
	bool RemovePin(UEdGraphPin* Pin);
	/** Breaks all links of all pins. */
	void BreakAllNodeLinks();

	/** Null for a node outside of any graph. */
	UEdGraph* GetGraph() const;
	/** The graph's, or null. */
	virtual const UEdGraphSchema* GetSchema() const;
	void CreateNewGuid() { NodeGuid = FGuid::NewGuid(); }
	ENodeEnabledState GetDesiredEnabledState() const { return EnabledState; }
	bool IsNodeEnabled() const { return EnabledState != ENodeEnabledState::Disabled; }
	void SetEnabledState(ENodeEnabledState NewState) { EnabledState = NewState; }
	/** Breaks all links and leaves the graph. */
	virtual void DestroyNode();

	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const;
	virtual FText GetTooltipText() const;
	/** Makes the pins of a new node. */
	virtual void AllocateDefaultPins() {}
	/** Makes the pins anew, for what the node refers to may have changed; links and defaults that still fit stay. */
	virtual void ReconstructNode() {}
	/** Called once for a node that a user or a program has put into a graph, before its pins are made. */
	virtual void PostPlacedNewNode() {}
	/** Links have been made or broken. */
	virtual void PinConnectionListChanged(UEdGraphPin* Pin) {}
	virtual void NodeConnectionListChanged() {}
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) {}
	virtual bool CanUserDeleteNode() const { return true; }
	virtual bool CanDuplicateNode() const { return true; }
	/** Graphs that the node stands for, a collapsed one for instance. */
	virtual TArray<UEdGraph*> GetSubGraphs() const { return {}; }

	void Serialize(FArchive& Ar) override;
	void PostLoad() override;
	void PostEditUndo() override;
	void PostDuplicate(bool bDuplicateForPIE) override;

private:
	/** A link that has been read: the far pin may not be there yet. */
	struct FReadLink
	{
		UEdGraphPin* Pin;
		UEdGraphNode* FarNode;
		FGuid FarPinId;
	};

	void SerializePins(FArchive& Ar);
	void SerializeLinks(FArchive& Ar, UEdGraphPin& Pin);
	/** What the links that have been read say, as far as the far ends agree. bMirror: a far end that has not been read anew follows. */
	void ResolveLinks(bool bMirror);
	bool HasReadLink(const UEdGraphPin* Pin, const UEdGraphNode* FarNode, const FGuid& FarPinId) const;

	/** Filled by reading, until ResolveLinks. In the order of the pins. */
	TArray<FReadLink> ReadLinks;
	bool bLinksToResolve = false;

	UPROPERTY()
	ENodeEnabledState EnabledState = ENodeEnabledState::Enabled;
};
