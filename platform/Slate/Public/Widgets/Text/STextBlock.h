#pragma once

#include "Framework/Text/TextLayout.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SLeafWidget.h"

/** A text that can't be edited. */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	/** Font and colour: the style's unless they are given. */
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return Text.Get(); }
	void SetText(TAttribute<FText> InText);
	FSlateFontInfo GetFont() const { return Font.Get(TextStyle->Font); }
	FSlateColor GetColorAndOpacity() const { return ColorAndOpacity.Get(TextStyle->ColorAndOpacity); }
	ETextJustify::Type GetJustification() const { return Justification.Get(); }
	const FTextBlockStyle& GetTextStyle() const { return *TextStyle; }

private:
	TAttribute<FText> Text;
	const FTextBlockStyle* TextStyle = nullptr;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<ETextJustify::Type> Justification;
};
