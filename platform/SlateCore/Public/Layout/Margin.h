#pragma once

#include "CoreMinimal.h"

/** Room around something, in Slate units. */
struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	constexpr FMargin() = default;
	constexpr FMargin(float Uniform)
		: FMargin(Uniform, Uniform, Uniform, Uniform)
	{
	}
	constexpr FMargin(float Horizontal, float Vertical)
		: FMargin(Horizontal, Vertical, Horizontal, Vertical)
	{
	}
	constexpr FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}
	constexpr bool operator==(const FMargin&) const = default;
};
