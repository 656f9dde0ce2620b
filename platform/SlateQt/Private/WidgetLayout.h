#pragma once

#include "SlateQtHost/Qt.h"
#include "Templates/Function.h"
#include "Widgets/SWidget.h"

#include <unordered_map>
#include <vector>

/**
 * Slate's rules of how much room widgets ask for and where their children go. Lengths are in Slate units, which are Qt's pixels. A widget
 * is asked for its height at a width, since texts wrap. What is dear to measure is kept until it is forgotten or no longer asked for.
 */
class FWidgetLayout
{
public:
	using FPlaceChild = TFunctionRef<void(SWidget& Child, const QRectF& Place)>;

	/** What it asks for; texts that wrap and scroll boxes ask for nothing. */
	qreal GetWidth(SWidget& Widget);
	/** What it needs to show all that is in it: where a row does not fit, boxes and pickers in it get less than they ask for. */
	qreal GetLeastWidth(SWidget& Widget);
	qreal GetHeight(SWidget& Widget, qreal Width);
	/** Calls the function for the children that show within the clip, in their order. */
	void PlaceChildren(SWidget& Widget, const QRectF& Area, const QRectF& Clip, FPlaceChild Place);

	// Of a child with the padding around it; the width is the slot's.
	qreal GetSlotWidth(const FSlotBase& Slot);
	qreal GetSlotHeight(const FSlotBase& Slot, qreal Width);
	/** Where the child goes in its slot's area. */
	QRectF PlaceInSlot(const FSlotBase& Slot, const QRectF& Area);

	/** The widget has changed in a way that may change its size. */
	void Forget(const SWidget& Widget) { Measures.erase(&Widget); }
	/** Drops what nobody has asked for since the last time. */
	void DropUnused();

private:
	struct FRule;
	static const FRule Rules[];
	/** The first that holds for the widget's class. */
	static const FRule& FindRule(SWidget& Widget);

	// Boxes.
	qreal GetColumnWidth(SWidget& Column);
	qreal GetColumnHeight(SWidget& Column, qreal Width);
	void PlaceColumn(SWidget& Column, const QRectF& Area, const QRectF& Clip, FPlaceChild Place);
	qreal GetRowWidth(SWidget& Row);
	qreal GetRowHeight(SWidget& Row, qreal Width);
	void PlaceRow(SWidget& Row, const QRectF& Area, FPlaceChild Place);

	// Widgets with one child.
	qreal GetContentWidth(SWidget& Compound);
	qreal GetContentHeight(SWidget& Compound, qreal Width);
	void PlaceContent(SWidget& Compound, const QRectF& Area, FPlaceChild Place);
	qreal GetBoundedWidth(SWidget& Box);
	qreal GetBoundedHeight(SWidget& Box, qreal Width);

	qreal GetTextHeight(SWidget& Text, qreal Width);
	/** Measured once. */
	qreal GetKeptWidth(SWidget& Widget, TFunctionRef<qreal()> Measure);

	std::vector<qreal> GetWidthsInRow(const FChildren& Children, qreal Width);
	/** Of those that ask for their own; 0 of the others. */
	std::vector<qreal> GetOwnWidthsInRow(const FChildren& Children);
	std::vector<qreal> GetHeightsInColumn(const FChildren& Children, qreal Width);

	/** Of a widget whose address may be another's by now; of what is unset nothing was measured yet. */
	struct FKept
	{
		TWeakPtr<SWidget> Widget;
		bool bUsed = true;
		/** The one that it was measured at. */
		qreal GivenWidth = Unmeasured;
	};
	struct FMeasures : FKept
	{
		/** What it asks for, and what it needs. */
		qreal OwnWidths[2] = { Unmeasured, Unmeasured };
		/** Where each child of a long column ends, from the column's start on. */
		std::vector<qreal> Ends;
	};
	struct FTextHeight : FKept
	{
		/** Kept, so that no other text has its address. */
		FText Text;
		qreal Height = Unmeasured;
	};
	static constexpr qreal Unmeasured = -1.0;

	/** What is kept of the widget, or a new entry. */
	template <typename KeptType>
	static KeptType& Keep(std::unordered_map<const SWidget*, KeptType>& Entries, SWidget& Widget)
	{
		KeptType& Kept = Entries[&Widget];
		if (Kept.Widget.Pin().Get() != &Widget)
		{
			Kept = KeptType();
			Kept.Widget = Widget.AsShared();
		}
		Kept.bUsed = true;
		return Kept;
	}
	const std::vector<qreal>& GetEnds(SWidget& LongColumn, qreal Width);

	/** Whether widths are measured as those that are needed. */
	bool bLeast = false;
	std::unordered_map<const SWidget*, FMeasures> Measures;
	std::unordered_map<const SWidget*, FTextHeight> TextHeights;
};
