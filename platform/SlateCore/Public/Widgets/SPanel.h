#pragma once

#include "Widgets/SWidget.h"

/** A widget that arranges any number of children. */
class SLATECORE_API SPanel : public SWidget
{
};
