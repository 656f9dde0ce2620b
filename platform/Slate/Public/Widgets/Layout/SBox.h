#pragma once

#include "Widgets/SCompoundWidget.h"

/** Bounds the size of its content. Lengths are in Slate units; 0 is none. */
class SLATE_API SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_ATTRIBUTE(float, WidthOverride)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_ATTRIBUTE(float, MinDesiredHeight)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	float GetWidthOverride() const { return WidthOverride.Get(); }
	float GetMinDesiredWidth() const { return MinDesiredWidth.Get(); }
	float GetMinDesiredHeight() const { return MinDesiredHeight.Get(); }
	FMargin GetPadding() const { return ChildSlot.GetSlotAt(0).GetPadding(); }

private:
	TAttribute<float> WidthOverride;
	TAttribute<float> MinDesiredWidth;
	TAttribute<float> MinDesiredHeight;
};
