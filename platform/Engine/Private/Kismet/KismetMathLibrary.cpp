#include "Kismet/KismetMathLibrary.h"

#include <random>

namespace
{
std::mt19937_64& GetRandomStream()
{
	static std::mt19937_64 Stream{ std::random_device{}() };
	return Stream;
}
}

int32 UKismetMathLibrary::RandomIntegerInRange(int32 Min, int32 Max)
{
	return Min < Max ? std::uniform_int_distribution<int32>(Min, Max)(GetRandomStream()) : Min;
}

double UKismetMathLibrary::RandomFloatInRange(double Min, double Max)
{
	return Lerp(Min, Max, std::uniform_real_distribution<double>(0.0, 1.0)(GetRandomStream()));
}

void UKismetMathLibrary::BreakVector(FVector InVec, double& X, double& Y, double& Z)
{
	X = InVec.X;
	Y = InVec.Y;
	Z = InVec.Z;
}

void UKismetMathLibrary::BreakRotator(FRotator InRot, double& Roll, double& Pitch, double& Yaw)
{
	Roll = InRot.Roll;
	Pitch = InRot.Pitch;
	Yaw = InRot.Yaw;
}

FRotator UKismetMathLibrary::FindLookAtRotation(const FVector& Start, const FVector& Target)
{
	return (Target - Start).Rotation();
}
