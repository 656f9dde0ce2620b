#include "WidgetLayout.h"

#include "LeafSize.h"
#include "SlateLook.h"
#include "SlotSize.h"
#include "WidgetClass.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

namespace
{
/** What stays of a scroll box where there is no room. */
constexpr qreal LeastScrollHeight = 60.0;
/** A text in the making grows up to so many lines; then it scrolls. */
constexpr qreal MostEditedLines = 10.0;

template <typename WidgetType>
const WidgetType& As(SWidget& Widget)
{
	return static_cast<const WidgetType&>(Widget);
}
}

/** How one class of widgets is laid out. */
struct FWidgetLayout::FRule
{
	bool (*Is)(SWidget& Widget);
	qreal (*GetWidth)(FWidgetLayout& Layout, SWidget& Widget);
	qreal (*GetHeight)(FWidgetLayout& Layout, SWidget& Widget, qreal Width);
	/** Null for those that have no children, or place them themselves. */
	void (*PlaceChildren)(FWidgetLayout& Layout, SWidget& Widget, const QRectF& Area, const QRectF& Clip, FPlaceChild Place);
};

// The more special classes come first.
const FWidgetLayout::FRule FWidgetLayout::Rules[] = {
	{ &IsWidget<SVerticalBox>, [](FWidgetLayout& Layout, SWidget& Box) { return Layout.GetColumnWidth(Box); },
		[](FWidgetLayout& Layout, SWidget& Box, qreal Width) { return Layout.GetColumnHeight(Box, Width); },
		[](FWidgetLayout& Layout, SWidget& Box, const QRectF& Area, const QRectF& Clip, FPlaceChild Place)
		{ Layout.PlaceColumn(Box, Area, Clip, Place); } },
	{ &IsWidget<SHorizontalBox>, [](FWidgetLayout& Layout, SWidget& Box) { return Layout.GetRowWidth(Box); },
		[](FWidgetLayout& Layout, SWidget& Box, qreal Width) { return Layout.GetRowHeight(Box, Width); },
		[](FWidgetLayout& Layout, SWidget& Box, const QRectF& Area, const QRectF&, FPlaceChild Place)
		{ Layout.PlaceRow(Box, Area, Place); } },
	{ &IsWidget<SScrollBox>, [](FWidgetLayout&, SWidget&) { return 0.0; },
		[](FWidgetLayout&, SWidget&, qreal) { return LeastScrollHeight; }, nullptr },
	{ &IsWidget<SBox>, [](FWidgetLayout& Layout, SWidget& Box) { return Layout.GetBoundedWidth(Box); },
		[](FWidgetLayout& Layout, SWidget& Box, qreal Width) { return Layout.GetBoundedHeight(Box, Width); },
		[](FWidgetLayout& Layout, SWidget& Box, const QRectF& Area, const QRectF&, FPlaceChild Place)
		{ Layout.PlaceContent(Box, Area, Place); } },
	{ &IsWidget<STextBlock>, [](FWidgetLayout&, SWidget& Text) { return GetLabelWidth(As<STextBlock>(Text)); },
		[](FWidgetLayout&, SWidget& Text, qreal) { return GetLabelHeight(As<STextBlock>(Text)); }, nullptr },
	{ &IsWidget<SMultiLineEditableText>, [](FWidgetLayout&, SWidget& Text) { return GetEditorWidth(As<SMultiLineEditableText>(Text)); },
		[](FWidgetLayout& Layout, SWidget& Text, qreal Width) { return Layout.GetTextHeight(Text, Width); }, nullptr },
	{ &IsWidget<SOptionPicker>,
		[](FWidgetLayout& Layout, SWidget& Picker)
		{ return Layout.GetKeptWidth(Picker,
			  [&] { return Layout.bLeast ? GetLeastPickerWidth() : GetPickerWidth(As<SOptionPicker>(Picker)); }); },
		[](FWidgetLayout&, SWidget&, qreal) { return GetPickerHeight(); }, nullptr },
	{ &IsWidget<SCompoundWidget>, [](FWidgetLayout& Layout, SWidget& Widget) { return Layout.GetContentWidth(Widget); },
		[](FWidgetLayout& Layout, SWidget& Widget, qreal Width) { return Layout.GetContentHeight(Widget, Width); },
		[](FWidgetLayout& Layout, SWidget& Widget, const QRectF& Area, const QRectF&, FPlaceChild Place)
		{ Layout.PlaceContent(Widget, Area, Place); } },
	{ &IsWidget<SWidget>, [](FWidgetLayout&, SWidget&) { return 0.0; }, [](FWidgetLayout&, SWidget&, qreal) { return 0.0; }, nullptr },
};

const FWidgetLayout::FRule& FWidgetLayout::FindRule(SWidget& Widget)
{
	return FindForClass(std::begin(Rules), std::end(Rules), Widget);
}

qreal FWidgetLayout::GetWidth(SWidget& Widget)
{
	return FindRule(Widget).GetWidth(*this, Widget);
}

qreal FWidgetLayout::GetLeastWidth(SWidget& Widget)
{
	const TGuardValue<bool> Least(bLeast, true);
	return GetWidth(Widget);
}

qreal FWidgetLayout::GetHeight(SWidget& Widget, qreal Width)
{
	return FindRule(Widget).GetHeight(*this, Widget, Width);
}

void FWidgetLayout::PlaceChildren(SWidget& Widget, const QRectF& Area, const QRectF& Clip, FPlaceChild Place)
{
	if (const auto PlaceThem = FindRule(Widget).PlaceChildren)
	{
		PlaceThem(*this, Widget, Area, Clip, Place);
	}
}

void FWidgetLayout::DropUnused()
{
	const auto Drop = [](auto& Kept)
	{
		for (auto Each = Kept.begin(); Each != Kept.end();)
		{
			Each = std::exchange(Each->second.bUsed, false) ? std::next(Each) : Kept.erase(Each);
		}
	};
	Drop(Measures);
	Drop(TextHeights);
}

qreal FWidgetLayout::GetSlotWidth(const FSlotBase& Slot)
{
	return IsCollapsed(Slot) ? 0.0 : GetWidth(*Slot.GetWidget()) + GetHorizontal(Slot.GetPadding());
}

qreal FWidgetLayout::GetSlotHeight(const FSlotBase& Slot, qreal Width)
{
	if (IsCollapsed(Slot))
	{
		return 0.0;
	}
	const FMargin Padding = Slot.GetPadding();
	const qreal Given = std::max(Width - GetHorizontal(Padding), 0.0);
	const qreal Taken = Slot.GetHorizontalAlignment() == HAlign_Fill ? Given : std::min(GetWidth(*Slot.GetWidget()), Given);
	return GetHeight(*Slot.GetWidget(), Taken) + GetVertical(Padding);
}

QRectF FWidgetLayout::PlaceInSlot(const FSlotBase& Slot, const QRectF& Area)
{
	const FMargin Padding = Slot.GetPadding();
	QRectF Place(Area.left() + static_cast<qreal>(Padding.Left), Area.top() + static_cast<qreal>(Padding.Top),
		std::max(Area.width() - GetHorizontal(Padding), 0.0), std::max(Area.height() - GetVertical(Padding), 0.0));
	// How much of what is left over goes before it.
	constexpr qreal Before[] = { 0.0, 0.0, 0.5, 1.0 };
	if (const EHorizontalAlignment Alignment = Slot.GetHorizontalAlignment(); Alignment != HAlign_Fill)
	{
		const qreal Width = std::min(GetWidth(*Slot.GetWidget()), Place.width());
		Place.setRect(Place.left() + (Place.width() - Width) * Before[Alignment], Place.top(), Width, Place.height());
	}
	if (const EVerticalAlignment Alignment = Slot.GetVerticalAlignment(); Alignment != VAlign_Fill)
	{
		const qreal Height = std::min(GetHeight(*Slot.GetWidget(), Place.width()), Place.height());
		Place.setRect(Place.left(), Place.top() + (Place.height() - Height) * Before[Alignment], Place.width(), Height);
	}
	return Place;
}

qreal FWidgetLayout::GetContentWidth(SWidget& Compound)
{
	const FChildren& Children = *Compound.GetChildren();
	return Children.Num() > 0 ? GetSlotWidth(Children.GetSlotAt(0)) : 0.0;
}

qreal FWidgetLayout::GetContentHeight(SWidget& Compound, qreal Width)
{
	const FChildren& Children = *Compound.GetChildren();
	return Children.Num() > 0 ? GetSlotHeight(Children.GetSlotAt(0), Width) : 0.0;
}

void FWidgetLayout::PlaceContent(SWidget& Compound, const QRectF& Area, FPlaceChild Place)
{
	const FChildren& Children = *Compound.GetChildren();
	if (Children.Num() > 0 && !IsCollapsed(Children.GetSlotAt(0)))
	{
		Place(*Children.GetChildAt(0), PlaceInSlot(Children.GetSlotAt(0), Area));
	}
}

qreal FWidgetLayout::GetBoundedWidth(SWidget& Widget)
{
	const SBox& Box = As<SBox>(Widget);
	const qreal Fixed = static_cast<qreal>(Box.GetWidthOverride());
	const qreal AskedFor = bLeast ? 0.0 : static_cast<qreal>(Box.GetMinDesiredWidth());
	return Fixed > 0.0 ? Fixed : std::max(AskedFor, GetContentWidth(Widget));
}

qreal FWidgetLayout::GetBoundedHeight(SWidget& Widget, qreal Width)
{
	return std::max(static_cast<qreal>(As<SBox>(Widget).GetMinDesiredHeight()), GetContentHeight(Widget, Width));
}

qreal FWidgetLayout::GetTextHeight(SWidget& Widget, qreal Width)
{
	const auto& Text = As<SMultiLineEditableText>(Widget);
	FTextHeight& Kept = Keep(TextHeights, Widget);
	if (Kept.GivenWidth != Width || &Kept.Text.ToString() != &Text.GetText().ToString())
	{
		Kept.GivenWidth = Width;
		Kept.Text = Text.GetText();
		Kept.Height = GetEditorHeight(Text, Width);
	}
	return Text.IsTextReadOnly() ? Kept.Height : std::min(Kept.Height, MostEditedLines * GetQtFont(Text.GetFont()).LineHeight);
}

qreal FWidgetLayout::GetKeptWidth(SWidget& Widget, TFunctionRef<qreal()> Measure)
{
	qreal& Width = Keep(Measures, Widget).OwnWidths[bLeast];
	if (Width == Unmeasured)
	{
		Width = Measure();
	}
	return Width;
}
