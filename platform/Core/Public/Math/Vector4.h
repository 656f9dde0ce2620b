#pragma once

#include "CoreTypes.h"

/** Four numbers: a homogeneous point, or a plane. */
struct FVector4
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;
	double W = 1.0;

	constexpr FVector4() = default;
	constexpr FVector4(double InX, double InY, double InZ, double InW = 1.0)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}

	constexpr bool operator==(const FVector4&) const = default;
};
