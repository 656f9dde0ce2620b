#pragma once

#include "Templates/TypeHash.h"

/** A point on a grid. */
struct FIntPoint
{
	int32 X = 0;
	int32 Y = 0;

	constexpr FIntPoint() = default;
	constexpr FIntPoint(int32 InX, int32 InY)
		: X(InX)
		, Y(InY)
	{
	}

	constexpr FIntPoint operator+(const FIntPoint& Other) const { return { X + Other.X, Y + Other.Y }; }
	constexpr FIntPoint operator-(const FIntPoint& Other) const { return { X - Other.X, Y - Other.Y }; }
	constexpr bool operator==(const FIntPoint&) const = default;

	friend uint32 GetTypeHash(const FIntPoint& Point) { return HashCombine(GetTypeHash(Point.X), GetTypeHash(Point.Y)); }
};
