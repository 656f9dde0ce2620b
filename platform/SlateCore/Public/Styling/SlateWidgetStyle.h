#pragma once

/** The look of one kind of widget. */
struct FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() = default;
};
