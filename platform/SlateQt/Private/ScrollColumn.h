#pragma once

#include "SlateQtHost/Qt.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <vector>

class FChildren;
class SWidget;

/**
 * Which part of a long column of children shows. Children are measured only where they are needed; of the others the height is guessed,
 * from what they had at another width or what is usual here. What shows stays where it is while others are added, removed or measured.
 */
class FScrollColumn
{
public:
	/** The height of a child with the padding around it. */
	using FMeasure = TFunctionRef<qreal(int32 Index)>;

	struct FShown
	{
		int32 Index;
		/** From the top of what shows. */
		qreal Top;
		qreal Height;
	};

	/** Takes on which children there are now. */
	void SetChildren(const FChildren& Children);
	/** With another one, all are measured again. */
	void SetWidth(qreal NewWidth);
	void Forget(const SWidget& Child);

	/** The children in a view of that height, in order. @param bAtEnd the last one's end is to show */
	std::vector<FShown> Show(qreal ViewHeight, bool bAtEnd, FMeasure Measure);
	/** @return whether the end shows then */
	bool ScrollBy(qreal Distance, qreal ViewHeight, FMeasure Measure);

	/** From the column's start to what shows first; as far as it is known. */
	qreal GetPosition() const;
	qreal GetHeight() const;

private:
	struct FEntry
	{
		/** Weak, since another one may get its address. */
		TWeakPtr<SWidget> Child;
		/** Below 0 when it was never measured. */
		qreal Height = -1.0;
		/** Whether it holds for the width of now. */
		bool bMeasured = false;
	};

	using FEntries = std::vector<FEntry>;
	static FEntries::iterator Find(FEntries::iterator Begin, FEntries::iterator End, const SWidget* Child);

	qreal MeasureEntry(int32 Index, FMeasure Measure);
	/** Of one that was never measured. */
	qreal GetUsualHeight() const;
	void ShowEnd(qreal ViewHeight, FMeasure Measure);

	FEntries Entries;
	qreal Width = -1.0;
	/** The first child that shows, and how much of it is above the view. */
	int32 First = 0;
	qreal Hidden = 0.0;
};
