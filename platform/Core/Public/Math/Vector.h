#pragma once

#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

struct FRotator;

/** A point or direction in space; X is forward, Y to the right, Z up. In centimetres where it is a place. */
struct CORE_API FVector
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;

	constexpr FVector() = default;
	constexpr explicit FVector(double InAll)
		: FVector(InAll, InAll, InAll)
	{
	}
	constexpr FVector(double InX, double InY, double InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}

	static const FVector ZeroVector;
	static const FVector OneVector;
	static const FVector UpVector;
	static const FVector ForwardVector;
	static const FVector RightVector;

	constexpr FVector operator+(const FVector& Other) const { return { X + Other.X, Y + Other.Y, Z + Other.Z }; }
	constexpr FVector operator-(const FVector& Other) const { return { X - Other.X, Y - Other.Y, Z - Other.Z }; }
	/** Component by component. */
	constexpr FVector operator*(const FVector& Other) const { return { X * Other.X, Y * Other.Y, Z * Other.Z }; }
	constexpr FVector operator*(double Scale) const { return { X * Scale, Y * Scale, Z * Scale }; }
	friend constexpr FVector operator*(double Scale, const FVector& Vector) { return Vector * Scale; }
	constexpr FVector operator/(double Scale) const { return { X / Scale, Y / Scale, Z / Scale }; }
	constexpr FVector operator-() const { return { -X, -Y, -Z }; }
	FVector& operator+=(const FVector& Other) { return *this = *this + Other; }
	FVector& operator-=(const FVector& Other) { return *this = *this - Other; }
	FVector& operator*=(double Scale) { return *this = *this * Scale; }
	constexpr bool operator==(const FVector&) const = default;

	static constexpr double DotProduct(const FVector& A, const FVector& B) { return A.X * B.X + A.Y * B.Y + A.Z * B.Z; }
	static constexpr FVector CrossProduct(const FVector& A, const FVector& B)
	{
		return { A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X };
	}
	static double Dist(const FVector& A, const FVector& B) { return (A - B).Size(); }
	constexpr double SizeSquared() const { return DotProduct(*this, *this); }
	double Size() const { return std::sqrt(SizeSquared()); }
	double Length() const { return Size(); }
	/** Of length one; zero for one that is shorter than the root of Tolerance. */
	FVector GetSafeNormal(double Tolerance = UE_SMALL_NUMBER) const { return SizeSquared() < Tolerance ? FVector() : *this / Size(); }
	bool Equals(const FVector& Other, double Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - Other.X) <= Tolerance && FMath::Abs(Y - Other.Y) <= Tolerance && FMath::Abs(Z - Other.Z) <= Tolerance;
	}
	bool IsNearlyZero(double Tolerance = UE_KINDA_SMALL_NUMBER) const { return Equals(FVector(), Tolerance); }
	bool IsZero() const { return *this == FVector(); }
	/** The direction as yaw and pitch. */
	FRotator Rotation() const;
	/** "X=1.000 Y=2.000 Z=3.000" */
	FString ToString() const;

	friend uint32 GetTypeHash(const FVector& Vector)
	{
		return HashCombine(HashCombine(GetTypeHash(Vector.X), GetTypeHash(Vector.Y)), GetTypeHash(Vector.Z));
	}
};
