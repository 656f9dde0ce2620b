#include "Brushes/SlateColorBrush.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"

namespace
{
struct FCoreStyleSet final : FSlateStyleSet
{
	FCoreStyleSet()
		: FSlateStyleSet("CoreStyle")
	{
		// Dark, so that the light letters of "NormalText" can be read on whatever colour it is tinted with.
		Set("Border", new FSlateColorBrush(FLinearColor(0.32f, 0.32f, 0.32f)));
		Set("NormalText",
			FTextBlockStyle().SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 10.0f)).SetColorAndOpacity(FLinearColor::White));
		Set("Button",
			FButtonStyle()
				.SetNormal(FSlateColorBrush(FLinearColor(0.05f, 0.05f, 0.05f)))
				.SetHovered(FSlateColorBrush(FLinearColor(0.1f, 0.1f, 0.1f)))
				.SetPressed(FSlateColorBrush(FLinearColor(0.02f, 0.02f, 0.02f)))
				.SetDisabled(FSlateColorBrush(FLinearColor(0.05f, 0.05f, 0.05f, 0.5f))));
	}
};

struct FAppStyleSet final : FSlateStyleSet
{
	FAppStyleSet()
		: FSlateStyleSet("EditorStyle")
	{
		// White, so that what a border says about its colour is what is seen.
		Set("Menu.Background", new FSlateColorBrush(FLinearColor::White));
		Set("NormalText",
			FTextBlockStyle()
				.SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 10.0f))
				.SetColorAndOpacity(FLinearColor(0.9f, 0.9f, 0.9f)));
	}
};
}

const ISlateStyle& FCoreStyle::Get()
{
	static const FCoreStyleSet Style;
	return Style;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const float InSize)
{
	return { InTypefaceFontName, InSize };
}

const ISlateStyle& FAppStyle::Get()
{
	static const FAppStyleSet Style;
	return Style;
}
