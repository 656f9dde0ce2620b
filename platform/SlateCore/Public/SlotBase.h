#pragma once

#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "Templates/UniquePtr.h"
#include "Types/SlateEnums.h"

class SWidget;

/** How much of its parent's length a child gets. */
struct FSizeParam
{
	enum ESizeRule : uint8
	{
		/** As much as it asks for. */
		SizeRule_Auto,
		/** A share of what is left, by Value. */
		SizeRule_Stretch
	};

	ESizeRule SizeRule = SizeRule_Auto;
	float Value = 0.0f;
};

/** The place that a widget has in its parent. It owns the widget. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	virtual ~FSlotBase();
	UE_NONCOPYABLE(FSlotBase)

	/** The null widget when there is none. */
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }
	bool HasWidget() const;
	/** Before SetOwner the widget only waits to get its parent. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);
	void SetOwner(SWidget& InOwner);

	/** Null in a slot that has no such rule. */
	virtual const FSizeParam* GetSizeParam() const { return nullptr; }

	FMargin GetPadding() const { return SlotPadding.Get(); }
	EHorizontalAlignment GetHorizontalAlignment() const { return HAlignment; }
	EVerticalAlignment GetVerticalAlignment() const { return VAlignment; }
	void SetPadding(TAttribute<FMargin> InPadding) { SlotPadding = MoveTemp(InPadding); }
	void SetHorizontalAlignment(EHorizontalAlignment InAlignment) { HAlignment = InAlignment; }
	void SetVerticalAlignment(EVerticalAlignment InAlignment) { VAlignment = InAlignment; }

private:
	TSharedRef<SWidget> Widget;
	SWidget* Owner = nullptr;
	TAttribute<FMargin> SlotPadding = FMargin();
	EHorizontalAlignment HAlignment = HAlign_Fill;
	EVerticalAlignment VAlignment = VAlign_Fill;
};

/** A slot in the making, as "+ SVerticalBox::Slot()" gives it. */
template <typename SlotType, typename ArgumentsType>
struct TBasicLayoutWidgetSlotArguments
{
	TUniquePtr<SlotType> Slot = MakeUnique<SlotType>();

	ArgumentsType& HAlign(EHorizontalAlignment InAlignment)
	{
		Slot->SetHorizontalAlignment(InAlignment);
		return Me();
	}
	ArgumentsType& VAlign(EVerticalAlignment InAlignment)
	{
		Slot->SetVerticalAlignment(InAlignment);
		return Me();
	}
	ArgumentsType& Padding(TAttribute<FMargin> InPadding)
	{
		Slot->SetPadding(MoveTemp(InPadding));
		return Me();
	}
	ArgumentsType& Padding(float Horizontal, float Vertical) { return Padding(FMargin(Horizontal, Vertical)); }
	ArgumentsType& Padding(float Left, float Top, float Right, float Bottom) { return Padding(FMargin(Left, Top, Right, Bottom)); }
	ArgumentsType& operator[](const TSharedRef<SWidget>& InWidget)
	{
		Slot->AttachWidget(InWidget);
		return Me();
	}

private:
	ArgumentsType& Me() { return static_cast<ArgumentsType&>(*this); }
};
