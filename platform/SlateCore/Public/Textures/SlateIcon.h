#pragma once

#include "Styling/ISlateStyle.h"

/** An image by the names of its style set and its brushes; looked up when it is shown. */
struct SLATECORE_API FSlateIcon
{
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName, const FName& InSmallStyleName = NAME_None)
		: StyleSetName(InStyleSetName)
		, StyleName(InStyleName)
		, SmallStyleName(InSmallStyleName)
	{
	}

	bool IsSet() const { return !StyleSetName.IsNone() && !StyleName.IsNone(); }
	/** Null when there is no such style set. */
	const FSlateBrush* GetIcon() const;
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }
	const FName& GetSmallStyleName() const { return SmallStyleName; }

private:
	FName StyleSetName;
	FName StyleName;
	FName SmallStyleName;
};
