#pragma once

#include "Widgets/SWidget.h"

class SLATECORE_API SLeafWidget : public SWidget
{
public:
	FChildren* GetChildren() override { return &FNoChildren::NoChildrenInstance; }
};
