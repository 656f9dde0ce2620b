#pragma once

#include "Widgets/SWidget.h"

/** A widget that is made of others: it has one child, below which it builds what it needs. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	FChildren* GetChildren() override { return &ChildSlot; }

protected:
	SCompoundWidget()
		: ChildSlot(*this)
	{
	}

	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;
};
