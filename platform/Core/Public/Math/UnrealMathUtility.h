#pragma once

#include "CoreTypes.h"

#include <cmath>
#include <numbers>

#define UE_SMALL_NUMBER (1.e-8)
#define UE_KINDA_SMALL_NUMBER (1.e-4)
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER

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
	template <typename T>
	static constexpr T Square(T Value)
	{
		return Value * Value;
	}
	template <typename T>
	static constexpr T Lerp(T From, T To, double Alpha)
	{
		return static_cast<T>(From + (To - From) * Alpha);
	}
	static double FloorToDouble(double Value) { return std::floor(Value); }
	static double Sqrt(double Value) { return std::sqrt(Value); }
	static constexpr double DegreesToRadians(double Degrees) { return Degrees * (std::numbers::pi / 180.0); }
	static constexpr double RadiansToDegrees(double Radians) { return Radians * (180.0 / std::numbers::pi); }
	template <typename T>
	static bool IsNearlyEqual(T A, T B, T Tolerance = T(1.e-8))
	{
		return Abs(A - B) <= Tolerance;
	}
	template <typename T>
	static bool IsNearlyZero(T Value, T Tolerance = T(1.e-8))
	{
		return Abs(Value) <= Tolerance;
	}
};
