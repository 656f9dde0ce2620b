#pragma once

#include "Math/Quat.h"

class FArchive;

/** Scale, then rotation, then translation. A * B applies A first. */
struct CORE_API FTransform
{
	FTransform() = default;
	explicit FTransform(const FVector& InTranslation)
		: Translation(InTranslation)
	{
	}
	explicit FTransform(const FQuat& InRotation)
		: Rotation(InRotation)
	{
	}
	explicit FTransform(const FRotator& InRotation)
		: Rotation(InRotation)
	{
	}
	FTransform(const FQuat& InRotation, const FVector& InTranslation, const FVector& InScale3D = FVector(1.0))
		: Rotation(InRotation)
		, Translation(InTranslation)
		, Scale3D(InScale3D)
	{
	}
	FTransform(const FRotator& InRotation, const FVector& InTranslation, const FVector& InScale3D = FVector(1.0))
		: FTransform(FQuat(InRotation), InTranslation, InScale3D)
	{
	}

	static const FTransform Identity;

	const FQuat& GetRotation() const { return Rotation; }
	FRotator Rotator() const { return Rotation.Rotator(); }
	const FVector& GetTranslation() const { return Translation; }
	const FVector& GetLocation() const { return Translation; }
	const FVector& GetScale3D() const { return Scale3D; }
	void SetRotation(const FQuat& NewRotation) { Rotation = NewRotation; }
	void SetTranslation(const FVector& NewTranslation) { Translation = NewTranslation; }
	void SetLocation(const FVector& NewLocation) { Translation = NewLocation; }
	void SetScale3D(const FVector& NewScale3D) { Scale3D = NewScale3D; }

	FTransform operator*(const FTransform& Other) const;
	bool operator==(const FTransform&) const = default;
	FVector TransformPosition(const FVector& Position) const { return Rotation.RotateVector(Scale3D * Position) + Translation; }
	FVector InverseTransformPosition(const FVector& Position) const;
	/** What has to be multiplied by Other to give this one; exact for uniform scales. */
	FTransform GetRelativeTransform(const FTransform& Other) const;
	FTransform Inverse() const { return Identity.GetRelativeTransform(*this); }
	bool Equals(const FTransform& Other, double Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance) &&
			Scale3D.Equals(Other.Scale3D, Tolerance);
	}

private:
	friend struct FBaseStructures;
	friend FArchive& operator<<(FArchive& Ar, FTransform& Value);

	FQuat Rotation;
	FVector Translation;
	FVector Scale3D = FVector(1.0);
};
