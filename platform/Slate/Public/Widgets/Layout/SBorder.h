#pragma once

#include "Styling/CoreStyle.h"
#include "Widgets/SCompoundWidget.h"

/** A filled area with room around its content. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _Padding(FMargin(2.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush("Border"))
		, _BorderBackgroundColor(FSlateColor(FLinearColor::White))
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FMargin, Padding)
	/** Must outlive the widget. */
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	/** What the image is tinted with. */
	SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FSlateBrush* GetBorderImage() const { return BorderImage.Get(); }
	FSlateColor GetBorderBackgroundColor() const { return BorderBackgroundColor.Get(); }
	FMargin GetPadding() const { return ChildSlot.GetSlotAt(0).GetPadding(); }

private:
	TAttribute<const FSlateBrush*> BorderImage;
	TAttribute<FSlateColor> BorderBackgroundColor;
};
