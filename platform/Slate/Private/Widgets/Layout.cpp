#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SNullWidget.h"

namespace
{
TSharedRef<SWidget> OrNothing(const TSharedPtr<SWidget>& Widget)
{
	return Widget.IsValid() ? Widget.ToSharedRef() : SNullWidget::NullWidget;
}
}

void SBorder::Construct(const FArguments& InArgs)
{
	BorderImage = InArgs._BorderImage;
	BorderBackgroundColor = InArgs._BorderBackgroundColor;
	ChildSlot.Padding(InArgs._Padding)[OrNothing(InArgs._Content)];
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[OrNothing(InArgs._Content)];
}

SScrollBox::FScopedWidgetSlotArguments::~FScopedWidgetSlotArguments()
{
	Box.Children.AddSlot(MoveTemp(Slot));
	Box.Invalidate(EInvalidateWidgetReason::ChildOrder);
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	OnUserScrolled = InArgs._OnUserScrolled;
	for (FSlot::FSlotArguments& Arguments : InArgs._Slots)
	{
		Children.AddSlot(MoveTemp(Arguments.Slot));
	}
}

void SScrollBox::RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove)
{
	const int32 Index = Children.Remove(WidgetToRemove);
	if (Index == INDEX_NONE)
	{
		return;
	}
	if (Index < SlotsAtEnd)
	{
		--SlotsAtEnd;
	}
	Invalidate(EInvalidateWidgetReason::ChildOrder);
}

void SScrollBox::ScrollToEnd()
{
	SlotsAtEnd = Children.Num();
	bScrollToEnd = true;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SScrollBox::ScrollByUser(float NewScrollOffset, bool bToEnd)
{
	SlotsAtEnd = bToEnd ? Children.Num() : INDEX_NONE;
	bScrollToEnd = false;
	OnUserScrolled.ExecuteIfBound(NewScrollOffset);
}
