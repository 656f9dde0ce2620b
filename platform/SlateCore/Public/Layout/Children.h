#pragma once

#include "SlotBase.h"

/** The slots of a widget, in order. */
class SLATECORE_API FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual const FSlotBase& GetSlotAt(int32 Index) const = 0;
	TSharedRef<SWidget> GetChildAt(int32 Index) const { return GetSlotAt(Index).GetWidget(); }
};

/** Of a widget that can have none. */
class SLATECORE_API FNoChildren final : public FChildren
{
public:
	static FNoChildren NoChildrenInstance;

	int32 Num() const override { return 0; }
	const FSlotBase& GetSlotAt(int32) const override { checkNoEntry(); }
};

/** The one child of a compound widget, or none. */
class SLATECORE_API FSingleWidgetChildrenWithBasicLayoutSlot final : public FChildren
{
public:
	explicit FSingleWidgetChildrenWithBasicLayoutSlot(SWidget& Owner) { Slot.SetOwner(Owner); }

	int32 Num() const override { return Slot.HasWidget() ? 1 : 0; }
	const FSlotBase& GetSlotAt(int32) const override { return Slot; }
	const TSharedRef<SWidget>& GetWidget() const { return Slot.GetWidget(); }

	FSingleWidgetChildrenWithBasicLayoutSlot& HAlign(EHorizontalAlignment InAlignment)
	{
		Slot.SetHorizontalAlignment(InAlignment);
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& VAlign(EVerticalAlignment InAlignment)
	{
		Slot.SetVerticalAlignment(InAlignment);
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(TAttribute<FMargin> InPadding)
	{
		Slot.SetPadding(MoveTemp(InPadding));
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& operator[](const TSharedRef<SWidget>& InWidget)
	{
		Slot.AttachWidget(InWidget);
		return *this;
	}

private:
	FSlotBase Slot;
};

/** Any number of children in slots of one type. */
template <typename SlotType>
class TPanelChildren final : public FChildren
{
public:
	explicit TPanelChildren(SWidget& InOwner)
		: Owner(InOwner)
	{
	}

	int32 Num() const override { return Slots.Num(); }
	const SlotType& GetSlotAt(int32 Index) const override { return *Slots[Index]; }

	void AddSlot(TUniquePtr<SlotType> Slot)
	{
		Slot->SetOwner(Owner);
		Slots.Add(MoveTemp(Slot));
	}
	/** The newest are looked at first. @return where it was, or INDEX_NONE when no slot holds the widget */
	int32 Remove(const TSharedRef<SWidget>& Widget)
	{
		for (int32 Index = Slots.Num() - 1; Index >= 0; --Index)
		{
			if (Slots[Index]->GetWidget() == Widget)
			{
				Slots.RemoveAt(Index);
				return Index;
			}
		}
		return INDEX_NONE;
	}

private:
	SWidget& Owner;
	TArray<TUniquePtr<SlotType>> Slots;
};
