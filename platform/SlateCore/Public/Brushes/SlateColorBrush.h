#pragma once

#include "Styling/SlateBrush.h"

/** One plain colour. */
struct FSlateColorBrush : FSlateBrush
{
	FSlateColorBrush(const FLinearColor& InColor) { TintColor = InColor; }
};
