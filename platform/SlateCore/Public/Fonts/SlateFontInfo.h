#pragma once

#include "CoreMinimal.h"

/** A font of the interface: a face of its typeface ("Regular", "Bold", "Italic") and a size in points. */
struct FSlateFontInfo
{
	FName TypefaceFontName;
	float Size = 0.0f;

	FSlateFontInfo() = default;
	FSlateFontInfo(const FName& InTypefaceFontName, float InSize)
		: TypefaceFontName(InTypefaceFontName)
		, Size(InSize)
	{
	}
};
