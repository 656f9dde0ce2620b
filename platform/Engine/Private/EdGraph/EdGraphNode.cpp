#include "EdGraph/EdGraphNode.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"

UEdGraphNode::~UEdGraphNode()
{
	for (UEdGraphPin* const Pin : Pins)
	{
		delete Pin;
	}
}

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, const FEdGraphPinType& InPinType, FName PinName, int32 Index)
{
	UEdGraphPin* const Pin = UEdGraphPin::CreatePin(this);
	Pin->PinName = PinName;
	Pin->Direction = Dir;
	Pin->PinType = InPinType;
	Modify(false);
	Pins.Insert(Pin, Pins.IsValidIndex(Index) ? Index : Pins.Num());
	return Pin;
}

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, FName PinCategory, FName PinName, const FCreatePinParams& PinParams)
{
	return CreatePin(Dir, PinCategory, FName(), nullptr, PinName, PinParams);
}

UEdGraphPin* UEdGraphNode::CreatePin(
	EEdGraphPinDirection Dir, FName PinCategory, UObject* PinSubCategoryObject, FName PinName, const FCreatePinParams& PinParams)
{
	return CreatePin(Dir, PinCategory, FName(), PinSubCategoryObject, PinName, PinParams);
}

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, FName PinCategory, FName PinSubCategory, UObject* PinSubCategoryObject,
	FName PinName, const FCreatePinParams& PinParams)
{
	FEdGraphPinType Type(
		PinCategory, PinSubCategory, PinSubCategoryObject, PinParams.ContainerType, PinParams.bIsReference, PinParams.ValueTerminalType);
	Type.bIsConst = PinParams.bIsConst;
	return CreatePin(Dir, Type, PinName, PinParams.Index);
}

UEdGraphPin* UEdGraphNode::FindPin(FName PinName, EEdGraphPinDirection Direction) const
{
	for (UEdGraphPin* const Pin : Pins)
	{
		if (Pin->PinName == PinName && (Direction == EGPD_MAX || Pin->Direction == Direction))
		{
			return Pin;
		}
	}
	return nullptr;
}

UEdGraphPin* UEdGraphNode::FindPinChecked(FName PinName, EEdGraphPinDirection Direction) const
{
	UEdGraphPin* const Pin = FindPin(PinName, Direction);
	checkf(Pin, TEXT("%s has no pin %s"), *GetName(), *PinName.ToString());
	return Pin;
}

UEdGraphPin* UEdGraphNode::FindPinById(const FGuid& PinId) const
{
	UEdGraphPin* const* const Found = Pins.FindByPredicate([&PinId](const UEdGraphPin* Pin) { return Pin->PinId == PinId; });
	return Found ? *Found : nullptr;
}

bool UEdGraphNode::RemovePin(UEdGraphPin* Pin)
{
	if (!Pins.Contains(Pin))
	{
		return false;
	}
	Modify();
	Pin->BreakAllPinLinks(true);
	Pins.RemoveSingle(Pin);
	delete Pin;
	return true;
}

void UEdGraphNode::BreakAllNodeLinks()
{
	for (UEdGraphPin* const Pin : Pins)
	{
		Pin->BreakAllPinLinks(true);
	}
	NodeConnectionListChanged();
}

UEdGraph* UEdGraphNode::GetGraph() const
{
	return Cast<UEdGraph>(GetOuter());
}

const UEdGraphSchema* UEdGraphNode::GetSchema() const
{
	const UEdGraph* const Graph = GetGraph();
	return Graph ? Graph->GetSchema() : nullptr;
}

void UEdGraphNode::DestroyNode()
{
	if (UEdGraph* const Graph = GetGraph())
	{
		Graph->RemoveNode(this);
	}
	else
	{
		BreakAllNodeLinks();
	}
}

FText UEdGraphNode::GetNodeTitle(ENodeTitleType::Type) const
{
	return FText::FromString(GetClass()->GetName());
}

FText UEdGraphNode::GetTooltipText() const
{
	return GetClass()->GetToolTipText();
}
