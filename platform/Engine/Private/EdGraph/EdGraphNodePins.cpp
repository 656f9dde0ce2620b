// How a node's pins and links get into files, the undo buffer and duplicates, and out of them.

#include "EdGraph/EdGraphNode.h"

namespace
{
/** In front of a node's pins, for later changes of their form. */
constexpr uint8 PinsVersion = 1;

/** The node's pin that has the id, if it has not been taken yet; it leaves the array. Mostly the order is the same as before. */
UEdGraphPin* TakePin(TArray<UEdGraphPin*>& Pins, int32 Hint, const FGuid& PinId)
{
	int32 Index = Hint;
	if (!Pins.IsValidIndex(Hint) || !Pins[Hint] || Pins[Hint]->PinId != PinId)
	{
		Index = Pins.IndexOfByPredicate([&PinId](const UEdGraphPin* Pin) { return Pin && Pin->PinId == PinId; });
	}
	return Index == INDEX_NONE ? nullptr : std::exchange(Pins[Index], nullptr);
}
}

void UEdGraphNode::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		// Links keep no node: who removes a node removes its links.
		for (UEdGraphPin* const Pin : Pins)
		{
			Pin->Serialize(Ar);
		}
	}
	else if (!HasAnyFlags(RF_ClassDefaultObject))
	{
		SerializePins(Ar);
	}
}

void UEdGraphNode::SerializePins(FArchive& Ar)
{
	uint8 Version = PinsVersion;
	int32 Count = Pins.Num();
	Ar << Version;
	SerializeCount(Ar, Count);
	if (!Ar.IsLoading())
	{
		for (UEdGraphPin* const Pin : Pins)
		{
			Ar << Pin->PinId;
			Pin->Serialize(Ar);
			SerializeLinks(Ar, *Pin);
		}
		return;
	}
	if (Version != PinsVersion)
	{
		Ar.SetError();
		return;
	}
	// Pins that stay keep their addresses, for the links of other nodes.
	TArray<UEdGraphPin*> Old = MoveTemp(Pins);
	Pins.Empty(Count);
	ReadLinks.Empty();
	bLinksToResolve = true;
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FGuid PinId;
		Ar << PinId;
		UEdGraphPin* Pin = TakePin(Old, Index, PinId);
		if (!Pin)
		{
			Pin = UEdGraphPin::CreatePin(this, PinId);
		}
		Pins.Add(Pin);
		Pin->Serialize(Ar);
		SerializeLinks(Ar, *Pin);
	}
	for (UEdGraphPin* const Pin : Old)
	{
		delete Pin;
	}
}

void UEdGraphNode::SerializeLinks(FArchive& Ar, UEdGraphPin& Pin)
{
	TArray<FReadLink> Links;
	if (Ar.IsSaving() && bLinksToResolve)
	{
		Links = ReadLinks.FilterByPredicate([&Pin](const FReadLink& Link) { return Link.Pin == &Pin; });
	}
	else if (Ar.IsSaving())
	{
		Links.Reserve(Pin.LinkedTo.Num());
		for (UEdGraphPin* const Far : Pin.LinkedTo)
		{
			Links.Add({ &Pin, Far->GetOwningNode(), Far->PinId });
		}
	}
	int32 Count = Links.Num();
	SerializeCount(Ar, Count);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FReadLink Link = Ar.IsSaving() ? Links[Index] : FReadLink{ &Pin, nullptr, {} };
		UObject* FarNode = Link.FarNode;
		Ar << FarNode << Link.FarPinId;
		Link.FarNode = Cast<UEdGraphNode>(FarNode);
		if (Ar.IsLoading() && Link.FarNode)
		{
			ReadLinks.Add(Link);
		}
	}
}

void UEdGraphNode::PostLoad()
{
	Super::PostLoad();
	ResolveLinks(false);
}

void UEdGraphNode::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	ResolveLinks(false);
}

void UEdGraphNode::PostEditUndo()
{
	Super::PostEditUndo();
	// A far end outside of the transaction was not changed by it, so what is read here is right.
	ResolveLinks(true);
}

bool UEdGraphNode::HasReadLink(const UEdGraphPin* Pin, const UEdGraphNode* FarNode, const FGuid& FarPinId) const
{
	return ReadLinks.ContainsByPredicate(
		[&](const FReadLink& Link) { return Link.Pin == Pin && Link.FarNode == FarNode && Link.FarPinId == FarPinId; });
}

void UEdGraphNode::ResolveLinks(bool bMirror)
{
	if (!bLinksToResolve || !IsValid(this))
	{
		return;
	}
	bLinksToResolve = false;
	TArray<TArray<UEdGraphPin*>> Before;
	for (UEdGraphPin* const Pin : Pins)
	{
		Before.Add(MoveTemp(Pin->LinkedTo));
		Pin->LinkedTo.Empty();
	}
	for (const FReadLink& Link : ReadLinks)
	{
		UEdGraphPin* const Far = IsValid(Link.FarNode) ? Link.FarNode->FindPinById(Link.FarPinId) : nullptr;
		if (!Far || Far == Link.Pin || Link.Pin->LinkedTo.Contains(Far))
		{
			continue;
		}
		const bool bFarKnows = Link.FarNode->bLinksToResolve || Link.FarNode == this ? Link.FarNode->HasReadLink(Far, this, Link.Pin->PinId)
																					 : Far->LinkedTo.Contains(Link.Pin);
		if (bFarKnows || (bMirror && !Link.FarNode->bLinksToResolve))
		{
			Link.Pin->LinkedTo.Add(Far);
		}
	}
	ReadLinks.Empty();
	for (int32 Index = 0; Index < Pins.Num(); ++Index)
	{
		for (UEdGraphPin* const Far : Before[Index])
		{
			if (!Pins[Index]->LinkedTo.Contains(Far))
			{
				Far->LinkedTo.RemoveSingle(Pins[Index]);
			}
		}
		for (UEdGraphPin* const Far : Pins[Index]->LinkedTo)
		{
			if (!Far->GetOwningNode()->bLinksToResolve)
			{
				Far->LinkedTo.AddUnique(Pins[Index]);
			}
		}
	}
}
