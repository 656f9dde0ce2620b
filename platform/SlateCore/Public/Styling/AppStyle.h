#pragma once

#include "Styling/ISlateStyle.h"

/** The editor's own look. */
class SLATECORE_API FAppStyle
{
public:
	static const ISlateStyle& Get();
	static const FSlateBrush* GetBrush(const FName PropertyName) { return Get().GetBrush(PropertyName); }
};
