#pragma once

#include "Widgets/SLeafWidget.h"

/** Nothing, where a widget is asked for. */
class SLATECORE_API SNullWidget
{
public:
	static const TSharedRef<SWidget> NullWidget;
};
