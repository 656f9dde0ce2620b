#pragma once

#include "CoreTypes.h"

#include <cmath>

struct FMath
{
	template <typename T>
	static constexpr T Max(T A, T B)
	{
		return A < B ? B : A;
	}
	template <typename T>
	static constexpr T Min(T A, T B)
	{
		return B < A ? B : A;
	}
	template <typename T>
	static constexpr T Clamp(T Value, T Low, T High)
	{
		return Value < Low ? Low : (High < Value ? High : Value);
	}
	template <typename T>
	static constexpr T Abs(T Value)
	{
		return Value < T(0) ? -Value : Value;
	}
	static double FloorToDouble(double Value) { return std::floor(Value); }
	template <typename T>
	static bool IsNearlyEqual(T A, T B, T Tolerance = T(1.e-8))
	{
		return Abs(A - B) <= Tolerance;
	}
};
