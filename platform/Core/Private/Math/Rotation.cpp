#include "Math/Transform.h"

constinit const FRotator FRotator::ZeroRotator;
constinit const FQuat FQuat::Identity;
constinit const FTransform FTransform::Identity;

FRotator::FRotator(const FQuat& Quat)
	: FRotator(Quat.Rotator())
{
}

double FRotator::NormalizeAxis(double Angle)
{
	const double Turned = std::remainder(Angle, 360.0);
	return Turned == -180.0 ? 180.0 : Turned;
}

bool FRotator::Equals(const FRotator& Other, double Tolerance) const
{
	const FRotator Difference = (*this - Other).GetNormalized();
	return FMath::Abs(Difference.Pitch) <= Tolerance && FMath::Abs(Difference.Yaw) <= Tolerance && FMath::Abs(Difference.Roll) <= Tolerance;
}

FQuat FRotator::Quaternion() const
{
	return FQuat(*this);
}

FVector FRotator::Vector() const
{
	return RotateVector(FVector::ForwardVector);
}

FVector FRotator::RotateVector(const FVector& InVector) const
{
	return Quaternion().RotateVector(InVector);
}

FString FRotator::ToString() const
{
	return FString::Printf(TEXT("P=%f Y=%f R=%f"), Pitch, Yaw, Roll);
}

FQuat::FQuat(const FVector& Axis, double AngleRad)
	: W(std::cos(AngleRad / 2))
{
	const double Sine = std::sin(AngleRad / 2);
	X = Axis.X * Sine;
	Y = Axis.Y * Sine;
	Z = Axis.Z * Sine;
}

// The axes are left-handed, and pitch and roll turn against them.
FQuat::FQuat(const FRotator& Rotator)
{
	const double HalfPitch = FMath::DegreesToRadians(Rotator.Pitch) / 2;
	const double HalfYaw = FMath::DegreesToRadians(Rotator.Yaw) / 2;
	const double HalfRoll = FMath::DegreesToRadians(Rotator.Roll) / 2;
	const double SP = std::sin(HalfPitch);
	const double CP = std::cos(HalfPitch);
	const double SY = std::sin(HalfYaw);
	const double CY = std::cos(HalfYaw);
	const double SR = std::sin(HalfRoll);
	const double CR = std::cos(HalfRoll);
	X = CR * SP * SY - SR * CP * CY;
	Y = -CR * SP * CY - SR * CP * SY;
	Z = CR * CP * SY - SR * SP * CY;
	W = CR * CP * CY + SR * SP * SY;
}

FQuat FQuat::operator*(const FQuat& Other) const
{
	return { W * Other.X + X * Other.W + Y * Other.Z - Z * Other.Y, W * Other.Y - X * Other.Z + Y * Other.W + Z * Other.X,
		W * Other.Z + X * Other.Y - Y * Other.X + Z * Other.W, W * Other.W - X * Other.X - Y * Other.Y - Z * Other.Z };
}

FQuat FQuat::GetNormalized(double Tolerance) const
{
	const double SquareSum = X * X + Y * Y + Z * Z + W * W;
	if (SquareSum < Tolerance)
	{
		return Identity;
	}
	const double Scale = 1.0 / std::sqrt(SquareSum);
	return { X * Scale, Y * Scale, Z * Scale, W * Scale };
}

bool FQuat::Equals(const FQuat& Other, double Tolerance) const
{
	const auto Near = [&](double Sign)
	{
		return FMath::Abs(X - Sign * Other.X) <= Tolerance && FMath::Abs(Y - Sign * Other.Y) <= Tolerance &&
			FMath::Abs(Z - Sign * Other.Z) <= Tolerance && FMath::Abs(W - Sign * Other.W) <= Tolerance;
	};
	return Near(1.0) || Near(-1.0);
}

FVector FQuat::RotateVector(const FVector& Vector) const
{
	const FVector Axis(X, Y, Z);
	const FVector Turned = 2.0 * FVector::CrossProduct(Axis, Vector);
	return Vector + W * Turned + FVector::CrossProduct(Axis, Turned);
}

FRotator FQuat::Rotator() const
{
	// Near straight up or down yaw and roll turn around the same axis: all of it counts as yaw.
	constexpr double Pole = 0.4999995;
	const double HalfSine = Z * X - W * Y;
	const double Yaw = FMath::RadiansToDegrees(std::atan2(2.0 * (W * Z + X * Y), 1.0 - 2.0 * (Y * Y + Z * Z)));
	const double Twist = 2.0 * FMath::RadiansToDegrees(std::atan2(X, W));
	if (HalfSine < -Pole)
	{
		return { -90.0, Yaw, FRotator::NormalizeAxis(-Yaw - Twist) };
	}
	if (HalfSine > Pole)
	{
		return { 90.0, Yaw, FRotator::NormalizeAxis(Yaw - Twist) };
	}
	return { FMath::RadiansToDegrees(std::asin(2.0 * HalfSine)), Yaw,
		FMath::RadiansToDegrees(std::atan2(-2.0 * (W * X + Y * Z), 1.0 - 2.0 * (X * X + Y * Y))) };
}

namespace
{
/** A scale of zero stays zero. */
double SafeReciprocal(double Scale)
{
	return FMath::Abs(Scale) <= UE_SMALL_NUMBER ? 0.0 : 1.0 / Scale;
}

FVector SafeReciprocal(const FVector& Scale)
{
	return { SafeReciprocal(Scale.X), SafeReciprocal(Scale.Y), SafeReciprocal(Scale.Z) };
}
}

FTransform FTransform::operator*(const FTransform& Other) const
{
	return { Other.Rotation * Rotation, Other.TransformPosition(Translation), Scale3D * Other.Scale3D };
}

FVector FTransform::InverseTransformPosition(const FVector& Position) const
{
	return Rotation.UnrotateVector(Position - Translation) * SafeReciprocal(Scale3D);
}

FTransform FTransform::GetRelativeTransform(const FTransform& Other) const
{
	return { Other.Rotation.Inverse() * Rotation, Other.InverseTransformPosition(Translation), Scale3D * SafeReciprocal(Other.Scale3D) };
}
