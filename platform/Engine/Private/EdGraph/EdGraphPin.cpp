#include "EdGraph/EdGraphPin.h"

#include "EdGraph/EdGraphNode.h"

namespace
{
/** A weak reference counts as a strong one. */
template <typename PointerType>
void SerializeObject(FArchive& Ar, PointerType& Pointer)
{
	UObject* Object = Pointer.Get();
	Ar << Object;
	Pointer = Object;
}

/** A bit of a mask that says which members follow, or what a flag's value is. */
class FMask
{
public:
	explicit FMask(FArchive& InAr)
		: Ar(InAr)
	{
	}

	/** Of the value that is written. */
	void Add(bool bSet) { Bits |= static_cast<uint32>(bSet) << Count++; }
	void Serialize()
	{
		Ar << Bits;
		Count = 0;
	}
	/** In the order of Add. */
	bool Next() { return ((Bits >> Count++) & 1) != 0; }

private:
	FArchive& Ar;
	uint32 Bits = 0;
	uint32 Count = 0;
};
}

FEdGraphTerminalType FEdGraphTerminalType::FromPinType(const FEdGraphPinType& PinType)
{
	FEdGraphTerminalType Terminal;
	Terminal.TerminalCategory = PinType.PinCategory;
	Terminal.TerminalSubCategory = PinType.PinSubCategory;
	Terminal.TerminalSubCategoryObject = PinType.PinSubCategoryObject;
	Terminal.bTerminalIsConst = PinType.bIsConst;
	Terminal.bTerminalIsWeakPointer = PinType.bIsWeakPointer;
	Terminal.bTerminalIsUObjectWrapper = PinType.bIsUObjectWrapper;
	return Terminal;
}

bool FEdGraphTerminalType::Serialize(FArchive& Ar)
{
	if (Ar.IsObjectReferenceCollector())
	{
		SerializeObject(Ar, TerminalSubCategoryObject);
		return true;
	}
	FMask Mask(Ar);
	Mask.Add(bTerminalIsConst);
	Mask.Add(bTerminalIsWeakPointer);
	Mask.Add(bTerminalIsUObjectWrapper);
	Mask.Serialize();
	bTerminalIsConst = Mask.Next();
	bTerminalIsWeakPointer = Mask.Next();
	bTerminalIsUObjectWrapper = Mask.Next();
	Ar << TerminalCategory << TerminalSubCategory;
	SerializeObject(Ar, TerminalSubCategoryObject);
	return true;
}

FEdGraphPinType::FEdGraphPinType(FName InPinCategory, FName InPinSubCategory, UObject* InPinSubCategoryObject,
	EPinContainerType InContainerType, bool bInIsReference, const FEdGraphTerminalType& InValueTerminalType)
	: PinCategory(InPinCategory)
	, PinSubCategory(InPinSubCategory)
	, PinSubCategoryObject(InPinSubCategoryObject)
	, PinValueType(InValueTerminalType)
	, ContainerType(InContainerType)
	, bIsReference(bInIsReference)
{
}

bool FEdGraphPinType::Serialize(FArchive& Ar)
{
	if (Ar.IsObjectReferenceCollector())
	{
		SerializeObject(Ar, PinSubCategoryObject);
		SerializeObject(Ar, PinSubCategoryMemberReference.MemberParent);
		return PinValueType.Serialize(Ar);
	}
	FMask Mask(Ar);
	Mask.Add(PinSubCategoryObject.IsValid());
	Mask.Add(PinSubCategoryMemberReference != FSimpleMemberReference());
	Mask.Add(PinValueType != FEdGraphTerminalType());
	Mask.Add(bIsReference);
	Mask.Add(bIsConst);
	Mask.Add(bIsWeakPointer);
	Mask.Add(bIsUObjectWrapper);
	Mask.Serialize();
	if (Ar.IsLoading())
	{
		ResetToDefaults();
	}
	Ar << PinCategory << PinSubCategory << ContainerType;
	if (Mask.Next())
	{
		SerializeObject(Ar, PinSubCategoryObject);
	}
	if (Mask.Next())
	{
		FSimpleMemberReference& Member = PinSubCategoryMemberReference;
		SerializeObject(Ar, Member.MemberParent);
		Ar << Member.MemberName << Member.MemberGuid;
	}
	if (Mask.Next())
	{
		PinValueType.Serialize(Ar);
	}
	bIsReference = Mask.Next();
	bIsConst = Mask.Next();
	bIsWeakPointer = Mask.Next();
	bIsUObjectWrapper = Mask.Next();
	if (ContainerType > EPinContainerType::Map)
	{
		ContainerType = EPinContainerType::None;
		Ar.SetError();
	}
	return true;
}

UEdGraphPin* UEdGraphPin::CreatePin(UEdGraphNode* InOwningNode, const FGuid& InPinId)
{
	UEdGraphPin* const Pin = new UEdGraphPin(InOwningNode);
	Pin->PinId = InPinId;
	return Pin;
}

UEdGraphPin::~UEdGraphPin()
{
	for (UEdGraphPin* const Other : LinkedTo)
	{
		Other->LinkedTo.RemoveSingle(this);
	}
}

FText UEdGraphPin::GetDisplayName() const
{
	return PinFriendlyName.IsEmpty() ? FText::FromName(PinName) : PinFriendlyName;
}

const UEdGraphSchema* UEdGraphPin::GetSchema() const
{
	return OwningNode->GetSchema();
}

bool UEdGraphPin::Modify(bool bAlwaysMarkDirty)
{
	return OwningNode->Modify(bAlwaysMarkDirty);
}

void UEdGraphPin::MakeLinkTo(UEdGraphPin* ToPin, bool bNotifyNodes)
{
	if (!ToPin || ToPin == this)
	{
		return;
	}
	// Each link stands in both lists, so the shorter one tells.
	const bool bLookHere = LinkedTo.Num() <= ToPin->LinkedTo.Num();
	if (bLookHere ? LinkedTo.Contains(ToPin) : ToPin->LinkedTo.Contains(this))
	{
		return;
	}
	Modify();
	ToPin->Modify();
	LinkedTo.Add(ToPin);
	ToPin->LinkedTo.Add(this);
	if (bNotifyNodes)
	{
		OwningNode->PinConnectionListChanged(this);
		ToPin->OwningNode->PinConnectionListChanged(ToPin);
	}
}

void UEdGraphPin::BreakLinkTo(UEdGraphPin* ToPin, bool bNotifyNodes)
{
	if (!ToPin || !LinkedTo.Contains(ToPin))
	{
		return;
	}
	Modify();
	ToPin->Modify();
	LinkedTo.RemoveSingle(ToPin);
	ToPin->LinkedTo.RemoveSingle(this);
	if (bNotifyNodes)
	{
		OwningNode->PinConnectionListChanged(this);
		ToPin->OwningNode->PinConnectionListChanged(ToPin);
	}
}

void UEdGraphPin::BreakAllPinLinks(bool bNotifyNodes)
{
	if (LinkedTo.IsEmpty())
	{
		return;
	}
	Modify();
	const TArray<UEdGraphPin*> Others = MoveTemp(LinkedTo);
	LinkedTo.Empty();
	for (UEdGraphPin* const Other : Others)
	{
		Other->Modify();
		Other->LinkedTo.RemoveSingle(this);
	}
	if (!bNotifyNodes)
	{
		return;
	}
	OwningNode->PinConnectionListChanged(this);
	for (UEdGraphPin* const Other : Others)
	{
		Other->OwningNode->PinConnectionListChanged(Other);
	}
}

FString UEdGraphPin::GetDefaultAsString() const
{
	if (DefaultObject)
	{
		return DefaultObject->GetPathName();
	}
	return DefaultTextValue.IsEmpty() ? DefaultValue : DefaultTextValue.ToString();
}

bool UEdGraphPin::DoesDefaultValueMatchAutogenerated() const
{
	return !DefaultObject && DefaultTextValue.IsEmpty() && DefaultValue.Equals(AutogeneratedDefaultValue);
}

void UEdGraphPin::ResetDefaultValue()
{
	DefaultValue = AutogeneratedDefaultValue;
	DefaultObject = nullptr;
	DefaultTextValue = FText();
}

void UEdGraphPin::MovePersistentDataFromOldPin(UEdGraphPin& SourcePin)
{
	PinId = SourcePin.PinId;
	if (!SourcePin.DoesDefaultValueMatchAutogenerated())
	{
		DefaultValue = SourcePin.DefaultValue;
		DefaultObject = SourcePin.DefaultObject;
		DefaultTextValue = SourcePin.DefaultTextValue;
	}
	bAdvancedView = SourcePin.bAdvancedView;
	for (UEdGraphPin* const Other : SourcePin.LinkedTo)
	{
		// In the far pin's list the new pin takes the old one's place.
		Other->Modify();
		Other->LinkedTo[Other->LinkedTo.Find(&SourcePin)] = this;
		LinkedTo.Add(Other);
	}
	SourcePin.LinkedTo.Empty();
}

void UEdGraphPin::Serialize(FArchive& Ar)
{
	PinType.Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		SerializeObject(Ar, DefaultObject);
		return;
	}
	FMask Mask(Ar);
	Mask.Add(!PinFriendlyName.IsEmpty());
	Mask.Add(!PinToolTip.IsEmpty());
	Mask.Add(!DefaultValue.IsEmpty());
	Mask.Add(!AutogeneratedDefaultValue.IsEmpty());
	Mask.Add(!DefaultTextValue.IsEmpty());
	Mask.Add(DefaultObject != nullptr);
	Mask.Add(Direction == EGPD_Output);
	Mask.Add(bHidden);
	Mask.Add(bNotConnectable);
	Mask.Add(bDefaultValueIsReadOnly);
	Mask.Add(bDefaultValueIsIgnored);
	Mask.Add(bAdvancedView);
	Mask.Add(bOrphanedPin);
	Mask.Serialize();

	Ar << PinName;
	const auto SerializeIf = [&Ar](bool bPresent, auto& Value)
	{
		if (bPresent)
		{
			Ar << Value;
		}
		else if (Ar.IsLoading())
		{
			Value = {};
		}
	};
	SerializeIf(Mask.Next(), PinFriendlyName);
	SerializeIf(Mask.Next(), PinToolTip);
	SerializeIf(Mask.Next(), DefaultValue);
	SerializeIf(Mask.Next(), AutogeneratedDefaultValue);
	SerializeIf(Mask.Next(), DefaultTextValue);
	UObject* Object = DefaultObject;
	SerializeIf(Mask.Next(), Object);
	DefaultObject = Object;
	Direction = Mask.Next() ? EGPD_Output : EGPD_Input;
	bHidden = Mask.Next();
	bNotConnectable = Mask.Next();
	bDefaultValueIsReadOnly = Mask.Next();
	bDefaultValueIsIgnored = Mask.Next();
	bAdvancedView = Mask.Next();
	bOrphanedPin = Mask.Next();
}
