#include "WidgetLayout.h"

#include "SlotSize.h"

#include <algorithm>
#include <numeric>

// Boxes: children below each other, or side by side. Some ask for their own length; the others share what is left.

namespace
{
/** Whether a column has so many children that it is worth while to keep where they are. */
bool IsLongColumn(const FChildren& Children)
{
	return Children.Num() >= 64 && GetShare(Children.GetSlotAt(0)) == 0.0;
}

/** @param Lengths of the children that ask for their own, 0 of the others; these get their shares */
void ShareRest(const FChildren& Children, qreal Length, std::vector<qreal>& Lengths)
{
	qreal Rest = Length;
	qreal Shares = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Rest -= Lengths[Index];
		Shares += IsCollapsed(Children.GetSlotAt(Index)) ? 0.0 : GetShare(Children.GetSlotAt(Index));
	}
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlotBase& Slot = Children.GetSlotAt(Index);
		if (GetShare(Slot) > 0.0 && !IsCollapsed(Slot))
		{
			Lengths[Index] = std::max(Rest, 0.0) * GetShare(Slot) / Shares;
		}
	}
}
}

std::vector<qreal> FWidgetLayout::GetOwnWidthsInRow(const FChildren& Children)
{
	std::vector<qreal> Widths(static_cast<SIZE_T>(Children.Num()));
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlotBase& Slot = Children.GetSlotAt(Index);
		Widths[Index] = GetShare(Slot) > 0.0 ? 0.0 : GetSlotWidth(Slot);
	}
	return Widths;
}

std::vector<qreal> FWidgetLayout::GetWidthsInRow(const FChildren& Children, qreal Width)
{
	std::vector<qreal> Widths = GetOwnWidthsInRow(Children);
	if (const qreal Sum = std::accumulate(Widths.begin(), Widths.end(), 0.0); Sum > Width)
	{
		const TGuardValue<bool> Guard(bLeast, true);
		const std::vector<qreal> Least = GetOwnWidthsInRow(Children);
		const qreal LeastSum = std::accumulate(Least.begin(), Least.end(), 0.0);
		const qreal Part = Sum > LeastSum ? std::max(Width - LeastSum, 0.0) / (Sum - LeastSum) : 0.0;
		std::transform(Widths.begin(), Widths.end(), Least.begin(), Widths.begin(),
			[Part](qreal Own, qreal Needed) { return Needed + (Own - Needed) * Part; });
	}
	ShareRest(Children, Width, Widths);
	return Widths;
}

std::vector<qreal> FWidgetLayout::GetHeightsInColumn(const FChildren& Children, qreal Width)
{
	std::vector<qreal> Heights(static_cast<SIZE_T>(Children.Num()));
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlotBase& Slot = Children.GetSlotAt(Index);
		Heights[Index] = GetShare(Slot) > 0.0 ? 0.0 : GetSlotHeight(Slot, Width);
	}
	return Heights;
}

qreal FWidgetLayout::GetRowWidth(SWidget& Row)
{
	const FChildren& Children = *Row.GetChildren();
	qreal Sum = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Sum += GetSlotWidth(Children.GetSlotAt(Index));
	}
	return Sum;
}

qreal FWidgetLayout::GetRowHeight(SWidget& Row, qreal Width)
{
	const FChildren& Children = *Row.GetChildren();
	const std::vector<qreal> Widths = GetWidthsInRow(Children, Width);
	qreal Highest = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Highest = std::max(Highest, GetSlotHeight(Children.GetSlotAt(Index), Widths[Index]));
	}
	return Highest;
}

void FWidgetLayout::PlaceRow(SWidget& Row, const QRectF& Area, FPlaceChild Place)
{
	const FChildren& Children = *Row.GetChildren();
	const std::vector<qreal> Widths = GetWidthsInRow(Children, Area.width());
	qreal Left = Area.left();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlotBase& Slot = Children.GetSlotAt(Index);
		if (!IsCollapsed(Slot))
		{
			Place(*Slot.GetWidget(), PlaceInSlot(Slot, QRectF(Left, Area.top(), Widths[Index], Area.height())));
		}
		Left += Widths[Index];
	}
}

qreal FWidgetLayout::GetColumnWidth(SWidget& Column)
{
	const FChildren& Children = *Column.GetChildren();
	const auto Measure = [&]
	{
		qreal Widest = 0.0;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			Widest = std::max(Widest, GetSlotWidth(Children.GetSlotAt(Index)));
		}
		return Widest;
	};
	return IsLongColumn(Children) ? GetKeptWidth(Column, Measure) : Measure();
}

const std::vector<qreal>& FWidgetLayout::GetEnds(SWidget& LongColumn, qreal Width)
{
	FMeasures& Kept = Keep(Measures, LongColumn);
	if (Kept.GivenWidth != Width)
	{
		Kept.GivenWidth = Width;
		Kept.Ends = GetHeightsInColumn(*LongColumn.GetChildren(), Width);
		std::partial_sum(Kept.Ends.begin(), Kept.Ends.end(), Kept.Ends.begin());
	}
	return Kept.Ends;
}

qreal FWidgetLayout::GetColumnHeight(SWidget& Column, qreal Width)
{
	const FChildren& Children = *Column.GetChildren();
	if (IsLongColumn(Children))
	{
		return GetEnds(Column, Width).back();
	}
	const std::vector<qreal> Heights = GetHeightsInColumn(Children, Width);
	return std::accumulate(Heights.begin(), Heights.end(), 0.0);
}

void FWidgetLayout::PlaceColumn(SWidget& Column, const QRectF& Area, const QRectF& Clip, FPlaceChild Place)
{
	const FChildren& Children = *Column.GetChildren();
	const auto PlaceOne = [&](int32 Index, qreal Top, qreal Height)
	{
		const FSlotBase& Slot = Children.GetSlotAt(Index);
		if (!IsCollapsed(Slot))
		{
			Place(*Slot.GetWidget(), PlaceInSlot(Slot, QRectF(Area.left(), Top, Area.width(), Height)));
		}
	};
	if (!IsLongColumn(Children))
	{
		std::vector<qreal> Heights = GetHeightsInColumn(Children, Area.width());
		ShareRest(Children, Area.height(), Heights);
		qreal Top = Area.top();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			PlaceOne(Index, Top, Heights[Index]);
			Top += Heights[Index];
		}
		return;
	}
	// The rows that show: from the first that ends below the clip's top to the last that begins above its bottom.
	const std::vector<qreal>& Ends = GetEnds(Column, Area.width());
	auto End = std::upper_bound(Ends.begin(), Ends.end(), Clip.top() - Area.top());
	for (qreal Start = End == Ends.begin() ? 0.0 : *(End - 1); End != Ends.end() && Area.top() + Start < Clip.bottom(); Start = *End++)
	{
		PlaceOne(static_cast<int32>(End - Ends.begin()), Area.top() + Start, *End - Start);
	}
}
