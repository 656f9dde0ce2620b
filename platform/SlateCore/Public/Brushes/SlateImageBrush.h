#pragma once

#include "Styling/SlateBrush.h"

/** An SVG file, drawn in any size without loss. */
struct FSlateVectorImageBrush : FSlateBrush
{
	FSlateVectorImageBrush(
		const FString& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint = FSlateColor(FLinearColor(1, 1, 1, 1)))
	{
		ImageType = ESlateBrushImageType::Vector;
		ResourceName = FName(InImageName);
		ImageSize = InImageSize;
		TintColor = InTint;
	}
};
