#pragma once

#include "CoreMinimal.h"

/** A colour as styles know it. */
class FSlateColor
{
public:
	FSlateColor() = default;
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
	{
	}

	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }
	bool operator==(const FSlateColor&) const = default;

private:
	FLinearColor SpecifiedColor = FLinearColor::White;
};
