#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateWidgetStyle.h"

enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked
};

struct FTextBlockStyle : FSlateWidgetStyle
{
	FSlateFontInfo Font;
	FSlateColor ColorAndOpacity;

	FTextBlockStyle& SetFont(const FSlateFontInfo& InFont)
	{
		Font = InFont;
		return *this;
	}
	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColor)
	{
		ColorAndOpacity = InColor;
		return *this;
	}
};

struct FButtonStyle : FSlateWidgetStyle
{
	FSlateBrush Normal;
	/** Under the mouse. */
	FSlateBrush Hovered;
	FSlateBrush Pressed;
	FSlateBrush Disabled;

	FButtonStyle& SetNormal(const FSlateBrush& InBrush)
	{
		Normal = InBrush;
		return *this;
	}
	FButtonStyle& SetHovered(const FSlateBrush& InBrush)
	{
		Hovered = InBrush;
		return *this;
	}
	FButtonStyle& SetPressed(const FSlateBrush& InBrush)
	{
		Pressed = InBrush;
		return *this;
	}
	FButtonStyle& SetDisabled(const FSlateBrush& InBrush)
	{
		Disabled = InBrush;
		return *this;
	}
};
