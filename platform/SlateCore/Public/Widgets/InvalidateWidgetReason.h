#pragma once

#include "Misc/EnumClassFlags.h"

/** What of a widget no longer holds. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	/** Its size or that of its children. */
	Layout = 1 << 0,
	/** Its look. */
	Paint = 1 << 1,
	/** Which children it has. */
	ChildOrder = 1 << 2
};
ENUM_CLASS_FLAGS(EInvalidateWidgetReason)
