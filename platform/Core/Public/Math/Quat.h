#pragma once

#include "Math/Rotator.h"

/** A rotation as a quaternion of length one. A * B rotates by B first. */
struct CORE_API FQuat
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;
	double W = 1.0;

	/** No rotation. */
	constexpr FQuat() = default;
	constexpr FQuat(double InX, double InY, double InZ, double InW)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}
	/** Around an axis of length one. */
	FQuat(const FVector& Axis, double AngleRad);
	explicit FQuat(const FRotator& Rotator);

	static const FQuat Identity;

	FQuat operator*(const FQuat& Other) const;
	constexpr bool operator==(const FQuat&) const = default;
	constexpr FQuat Inverse() const { return { -X, -Y, -Z, W }; }
	/** Of length one; Identity for one without length. */
	FQuat GetNormalized(double Tolerance = UE_SMALL_NUMBER) const;
	/** Both signs of a quaternion are the same rotation. */
	bool Equals(const FQuat& Other, double Tolerance = UE_KINDA_SMALL_NUMBER) const;
	FVector RotateVector(const FVector& Vector) const;
	FVector UnrotateVector(const FVector& Vector) const { return Inverse().RotateVector(Vector); }
	FRotator Rotator() const;
};
