#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

struct FLinearColor;

/** A colour as a screen shows it, each channel a byte. */
struct CORE_API FColor
{
	uint8 B = 0;
	uint8 G = 0;
	uint8 R = 0;
	uint8 A = 0;

	constexpr FColor() = default;
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}

	static const FColor White;
	static const FColor Black;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;

	constexpr bool operator==(const FColor&) const = default;
	friend uint32 GetTypeHash(const FColor& Color)
	{
		return GetTypeHash(static_cast<uint32>(Color.A << 24 | Color.R << 16 | Color.G << 8 | Color.B));
	}
};

/** A colour in linear space, each channel a float where 1.0 is full. */
struct CORE_API FLinearColor
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
	/** From the screen's curve to linear space. */
	explicit FLinearColor(const FColor& Color);

	static const FLinearColor White;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;

	/** @param bSRGB along the screen's curve; straight otherwise */
	FColor ToFColor(bool bSRGB) const;
	constexpr bool operator==(const FLinearColor&) const = default;
};
