#pragma once

#include "Styling/ISlateStyle.h"

/** What widgets look like that are told nothing else. */
class SLATECORE_API FCoreStyle
{
public:
	static const ISlateStyle& Get();
	/** @param InTypefaceFontName "Regular", "Bold" or "Italic" */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const float InSize);
};
