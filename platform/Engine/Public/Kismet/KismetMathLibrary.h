#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathLibrary.generated.h"

/** Functions of mathematics for Blueprints. A division by zero gives zero. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "MathLibrary"))
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "NOT Boolean", CompactNodeTitle = "NOT", Keywords = "! not negate"), Category = "Math|Boolean")
	static bool Not_PreBool(bool A) { return !A; }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "AND Boolean", CompactNodeTitle = "AND", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Boolean")
	static bool BooleanAND(bool A, bool B) { return A && B; }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "OR Boolean", CompactNodeTitle = "OR", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Boolean")
	static bool BooleanOR(bool A, bool B) { return A || B; }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "Equal (Boolean)", CompactNodeTitle = "==", Keywords = "== equal"), Category = "Math|Boolean")
	static bool EqualEqual_BoolBool(bool A, bool B) { return A == B; }
	// Integers wrap around, as a processor's do.

	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "integer + integer", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Integer")
	static int32 Add_IntInt(int32 A, int32 B = 1) { return static_cast<int32>(static_cast<uint32>(A) + static_cast<uint32>(B)); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "integer - integer", CompactNodeTitle = "-", Keywords = "- subtract minus"),
		Category = "Math|Integer")
	static int32 Subtract_IntInt(int32 A, int32 B = 1) { return static_cast<int32>(static_cast<uint32>(A) - static_cast<uint32>(B)); }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "integer * integer", CompactNodeTitle = "x", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Integer")
	static int32 Multiply_IntInt(int32 A, int32 B) { return static_cast<int32>(static_cast<uint32>(A) * static_cast<uint32>(B)); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "integer / integer", CompactNodeTitle = "/", Keywords = "/ divide division"),
		Category = "Math|Integer")
	static int32 Divide_IntInt(int32 A, int32 B = 1) { return B == 0 ? 0 : static_cast<int32>(int64(A) / B); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "% (integer)", CompactNodeTitle = "%", Keywords = "% modulus"), Category = "Math|Integer")
	static int32 Percent_IntInt(int32 A, int32 B = 1) { return B == 0 ? 0 : static_cast<int32>(int64(A) % B); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "integer < integer", CompactNodeTitle = "<", Keywords = "<"), Category = "Math|Integer")
	static bool Less_IntInt(int32 A, int32 B) { return A < B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "integer > integer", CompactNodeTitle = ">", Keywords = ">"), Category = "Math|Integer")
	static bool Greater_IntInt(int32 A, int32 B) { return A > B; }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "integer <= integer", CompactNodeTitle = "<=", Keywords = "<="), Category = "Math|Integer")
	static bool LessEqual_IntInt(int32 A, int32 B) { return A <= B; }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "integer >= integer", CompactNodeTitle = ">=", Keywords = ">="), Category = "Math|Integer")
	static bool GreaterEqual_IntInt(int32 A, int32 B) { return A >= B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Equal (Integer)", CompactNodeTitle = "==", Keywords = "=="), Category = "Math|Integer")
	static bool EqualEqual_IntInt(int32 A, int32 B) { return A == B; }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "Not Equal (Integer)", CompactNodeTitle = "!=", Keywords = "!="), Category = "Math|Integer")
	static bool NotEqual_IntInt(int32 A, int32 B) { return A != B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Clamp (Integer)"), Category = "Math|Integer")
	static int32 Clamp(int32 Value, int32 Min, int32 Max) { return FMath::Clamp(Value, Min, Max); }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "float + float", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Float")
	static double Add_DoubleDouble(double A, double B = 1.0) { return A + B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float - float", CompactNodeTitle = "-", Keywords = "- subtract minus"),
		Category = "Math|Float")
	static double Subtract_DoubleDouble(double A, double B = 1.0) { return A - B; }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "float * float", CompactNodeTitle = "x", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Float")
	static double Multiply_DoubleDouble(double A, double B) { return A * B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float / float", CompactNodeTitle = "/", Keywords = "/ divide division"),
		Category = "Math|Float")
	static double Divide_DoubleDouble(double A, double B = 1.0) { return B == 0.0 ? 0.0 : A / B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float < float", CompactNodeTitle = "<", Keywords = "<"), Category = "Math|Float")
	static bool Less_DoubleDouble(double A, double B) { return A < B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float > float", CompactNodeTitle = ">", Keywords = ">"), Category = "Math|Float")
	static bool Greater_DoubleDouble(double A, double B) { return A > B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float <= float", CompactNodeTitle = "<=", Keywords = "<="), Category = "Math|Float")
	static bool LessEqual_DoubleDouble(double A, double B) { return A <= B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "float >= float", CompactNodeTitle = ">=", Keywords = ">="), Category = "Math|Float")
	static bool GreaterEqual_DoubleDouble(double A, double B) { return A >= B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Equal (Float)", CompactNodeTitle = "==", Keywords = "=="), Category = "Math|Float")
	static bool EqualEqual_DoubleDouble(double A, double B) { return A == B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Clamp (Float)"), Category = "Math|Float")
	static double FClamp(double Value, double Min, double Max) { return FMath::Clamp(Value, Min, Max); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Absolute (Float)", CompactNodeTitle = "ABS"), Category = "Math|Float")
	static double Abs(double A) { return FMath::Abs(A); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "Square Root", CompactNodeTitle = "SQRT", Keywords = "square root"), Category = "Math|Float")
	static double Sqrt(double A) { return A > 0.0 ? std::sqrt(A) : 0.0; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Lerp"), Category = "Math|Float")
	static double Lerp(double A, double B, double Alpha) { return A + Alpha * (B - A); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To Float (Integer)", CompactNodeTitle = "->", Keywords = "cast convert"),
		Category = "Math|Conversions")
	static double Conv_IntToDouble(int32 InInt) { return InInt; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Truncate"), Category = "Math|Float")
	static int32 FTrunc(double A) { return static_cast<int32>(FMath::Clamp(A, -2147483648.0, 2147483647.0)); }
	/** Both ends count. */
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Random Integer in Range", NotBlueprintThreadSafe), Category = "Math|Random")
	static int32 RandomIntegerInRange(int32 Min, int32 Max);
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Random Float in Range", NotBlueprintThreadSafe), Category = "Math|Random")
	static double RandomFloatInRange(double Min, double Max);
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Make Vector", Keywords = "construct build"), Category = "Math|Vector")
	static FVector MakeVector(double X, double Y, double Z) { return FVector(X, Y, Z); }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "vector + vector", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"),
		Category = "Math|Vector")
	static FVector Add_VectorVector(FVector A, FVector B) { return A + B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "vector - vector", CompactNodeTitle = "-", Keywords = "- subtract minus"),
		Category = "Math|Vector")
	static FVector Subtract_VectorVector(FVector A, FVector B) { return A - B; }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "vector * float", CompactNodeTitle = "x", Keywords = "* multiply"), Category = "Math|Vector")
	static FVector Multiply_VectorFloat(FVector A, double B) { return A * B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Vector Length", Keywords = "magnitude"), Category = "Math|Vector")
	static double VSize(FVector A) { return A.Size(); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Distance (Vector)", Keywords = "magnitude"), Category = "Math|Vector")
	static double Vector_Distance(FVector V1, FVector V2) { return FVector::Dist(V1, V2); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Normalize", Keywords = "unit vector"), Category = "Math|Vector")
	static FVector Normal(FVector A, float Tolerance = 1.e-4f) { return A.GetSafeNormal(Tolerance); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Make Rotator", Keywords = "construct build rotation"), Category = "Math|Rotator")
	static FRotator MakeRotator(double Roll, double Pitch, double Yaw) { return FRotator(Pitch, Yaw, Roll); }
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (NativeBreakFunc))
	static void BreakVector(FVector InVec, double& X, double& Y, double& Z);
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (NativeBreakFunc))
	static void BreakRotator(FRotator InRot, double& Roll, double& Pitch, double& Yaw);
	/** Where to look to see Target from Start. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator")
	static FRotator FindLookAtRotation(const FVector& Start, const FVector& Target);
};
