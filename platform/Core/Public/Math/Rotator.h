#pragma once

#include "Math/Vector.h"

struct FQuat;

/** A rotation in degrees: first roll around X, then pitch around Y, then yaw around Z. */
struct CORE_API FRotator
{
	/** Up. */
	double Pitch = 0.0;
	/** To the right. */
	double Yaw = 0.0;
	/** Clockwise as seen from behind. */
	double Roll = 0.0;

	constexpr FRotator() = default;
	constexpr FRotator(double InPitch, double InYaw, double InRoll)
		: Pitch(InPitch)
		, Yaw(InYaw)
		, Roll(InRoll)
	{
	}
	explicit FRotator(const FQuat& Quat);

	static const FRotator ZeroRotator;

	constexpr FRotator operator+(const FRotator& Other) const { return { Pitch + Other.Pitch, Yaw + Other.Yaw, Roll + Other.Roll }; }
	constexpr FRotator operator-(const FRotator& Other) const { return { Pitch - Other.Pitch, Yaw - Other.Yaw, Roll - Other.Roll }; }
	constexpr FRotator operator*(double Scale) const { return { Pitch * Scale, Yaw * Scale, Roll * Scale }; }
	constexpr bool operator==(const FRotator&) const = default;

	/** The same angle in (-180, 180]. */
	static double NormalizeAxis(double Angle);
	FRotator GetNormalized() const { return { NormalizeAxis(Pitch), NormalizeAxis(Yaw), NormalizeAxis(Roll) }; }
	/** Angles that differ by whole turns are equal. */
	bool Equals(const FRotator& Other, double Tolerance = UE_KINDA_SMALL_NUMBER) const;
	bool IsNearlyZero(double Tolerance = UE_KINDA_SMALL_NUMBER) const { return Equals(FRotator(), Tolerance); }
	bool IsZero() const { return *this == FRotator(); }
	FQuat Quaternion() const;
	/** Where forward points after the rotation. */
	FVector Vector() const;
	FVector RotateVector(const FVector& InVector) const;
	/** "P=1.000000 Y=2.000000 R=3.000000" */
	FString ToString() const;
};
