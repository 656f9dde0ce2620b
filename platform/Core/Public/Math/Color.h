#pragma once

#include "CoreTypes.h"

/** A colour in linear space, each channel a float where 1.0 is full. */
struct FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	constexpr FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}

	constexpr bool operator==(const FLinearColor&) const = default;
};
