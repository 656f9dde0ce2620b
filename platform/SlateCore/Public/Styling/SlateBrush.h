#pragma once

#include "Styling/SlateColor.h"

namespace ESlateBrushDrawType
{
enum Type : uint8
{
	NoDrawType,
	/** One plain colour, or the image. */
	Image
};
}

namespace ESlateBrushImageType
{
enum Type : uint8
{
	NoImage,
	Vector
};
}

/** How an area is filled. */
struct FSlateBrush
{
	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;
	/** The colour, or what an image is tinted with. */
	FSlateColor TintColor;
	/** In Slate units; zero without an image. */
	FVector2D ImageSize;

	FSlateBrush() = default;
	virtual ~FSlateBrush() = default;
	FSlateBrush(const FSlateBrush&) = default;
	FSlateBrush& operator=(const FSlateBrush&) = default;

	/** The image's file; none without one. */
	FName GetResourceName() const { return ResourceName; }
	FVector2D GetImageSize() const { return ImageSize; }
	FLinearColor GetTint() const { return TintColor.GetSpecifiedColor(); }

protected:
	FName ResourceName;
};
