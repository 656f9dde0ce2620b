#pragma once

#include "Containers/Ticker.h"

/** A timer that was registered with a widget. */
class FActiveTimerHandle
{
	friend class SWidget;

	FTSTicker::FDelegateHandle Ticker;
};
