#pragma once

#include "Styling/SlateTypes.h"

/** Brushes and styles by name. What it gives lives as long as the set. */
class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;
	/** An empty brush, with a warning in the log, when there is none of that name. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName) const = 0;
	/** There must be one of that name and type. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(const FName StyleName) const
	{
		const WidgetStyleType* const Style = dynamic_cast<const WidgetStyleType*>(FindWidgetStyle(StyleName));
		checkf(Style, TEXT("there is no style '%s'"), *StyleName.ToString());
		return *Style;
	}

	/** The stand-in's own: under which name this very brush or style is in the set; none when it is not. */
	virtual FName FindKey(const void* Item) const = 0;

protected:
	virtual const FSlateWidgetStyle* FindWidgetStyle(const FName& StyleName) const = 0;
};
