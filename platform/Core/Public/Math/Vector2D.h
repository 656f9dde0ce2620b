#pragma once

#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

/** A point or direction in a plane. */
struct CORE_API FVector2D
{
	double X = 0.0;
	double Y = 0.0;

	constexpr FVector2D() = default;
	constexpr FVector2D(double InX, double InY)
		: X(InX)
		, Y(InY)
	{
	}

	static const FVector2D ZeroVector;

	constexpr FVector2D operator+(const FVector2D& Other) const { return { X + Other.X, Y + Other.Y }; }
	constexpr FVector2D operator-(const FVector2D& Other) const { return { X - Other.X, Y - Other.Y }; }
	constexpr FVector2D operator*(double Scale) const { return { X * Scale, Y * Scale }; }
	constexpr bool operator==(const FVector2D&) const = default;
	/** "X=1.000 Y=2.000" */
	FString ToString() const;

	friend uint32 GetTypeHash(const FVector2D& Vector) { return HashCombine(GetTypeHash(Vector.X), GetTypeHash(Vector.Y)); }
};
