#include "Math/Vector.h"

#include "Math/Rotator.h"
#include "Math/Vector2D.h"

constinit const FVector FVector::ZeroVector(0.0);
constinit const FVector FVector::OneVector(1.0);
constinit const FVector FVector::UpVector(0.0, 0.0, 1.0);
constinit const FVector FVector::ForwardVector(1.0, 0.0, 0.0);
constinit const FVector FVector::RightVector(0.0, 1.0, 0.0);
constinit const FVector2D FVector2D::ZeroVector;

FRotator FVector::Rotation() const
{
	return { FMath::RadiansToDegrees(std::atan2(Z, std::hypot(X, Y))), FMath::RadiansToDegrees(std::atan2(Y, X)), 0.0 };
}

FString FVector::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), X, Y, Z);
}

FString FVector2D::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), X, Y);
}
