#pragma once

#include "Curves/KeyHandle.h"
#include "UObject/Class.h"
#include <limits>

#include "RichCurve.generated.h"

/** How a curve goes from a key to the next. */
UENUM(BlueprintType)
enum ERichCurveInterpMode : int
{
	RCIM_Linear,
	RCIM_Constant,
	RCIM_Cubic,
	RCIM_None,
};

UENUM(BlueprintType)
enum ERichCurveTangentMode : int
{
	/** The curve sets the tangents from the keys around. */
	RCTM_Auto,
	RCTM_User,
	RCTM_Break,
	RCTM_None,
};

/** How a curve goes on before its first and behind its last key. */
UENUM(BlueprintType)
enum ERichCurveExtrapolation : int
{
	RCCE_Cycle,
	RCCE_CycleWithOffset,
	RCCE_Oscillate,
	RCCE_Linear,
	RCCE_Constant,
	RCCE_None,
};

USTRUCT(BlueprintType)
struct ENGINE_API FRichCurveKey
{
	GENERATED_BODY()

	FRichCurveKey() = default;
	FRichCurveKey(float InTime, float InValue)
		: Time(InTime)
		, Value(InValue)
	{
	}

	UPROPERTY()
	TEnumAsByte<ERichCurveInterpMode> InterpMode = RCIM_Linear;

	UPROPERTY()
	TEnumAsByte<ERichCurveTangentMode> TangentMode = RCTM_Auto;

	/** In seconds. */
	UPROPERTY(EditAnywhere, Category = Key)
	float Time = 0.0f;

	UPROPERTY(EditAnywhere, Category = Key)
	float Value = 0.0f;

	/** Value per second, just before the key and just behind it; for cubic interpolation. */
	UPROPERTY()
	float ArriveTangent = 0.0f;

	UPROPERTY()
	float LeaveTangent = 0.0f;
};

/** A value over time, given at keys that are in the order of time. */
USTRUCT(BlueprintType)
struct ENGINE_API FRichCurve
{
	GENERATED_BODY()

	static constexpr float NoDefaultValue = std::numeric_limits<float>::max();

	UPROPERTY()
	TEnumAsByte<ERichCurveExtrapolation> PreInfinityExtrap = RCCE_Constant;

	UPROPERTY()
	TEnumAsByte<ERichCurveExtrapolation> PostInfinityExtrap = RCCE_Constant;

	/** Of a curve without keys. */
	UPROPERTY(EditAnywhere, Category = Curve)
	float DefaultValue = NoDefaultValue;

	UPROPERTY(EditAnywhere, EditFixedSize, Category = Curve)
	TArray<FRichCurveKey> Keys;

	/**
	 * Puts a key behind those of the same and of earlier times.
	 * @param bUnwindRotation the value, an angle in degrees, becomes the one nearest to that of the key before
	 * @param KeyHandle what the key is referred to by
	 */
	FKeyHandle AddKey(float InTime, float InValue, bool bUnwindRotation = false, FKeyHandle KeyHandle = FKeyHandle());
	/** Sets the key at that time, within a tolerance, or adds one. */
	FKeyHandle UpdateOrAddKey(float InTime, float InValue, bool bUnwindRotation = false, float KeyTimeTolerance = 1.e-4f);
	void DeleteKey(FKeyHandle KeyHandle);
	/** FKeyHandle::Invalid() when there is none. */
	FKeyHandle FindKey(float KeyTime, float KeyTimeTolerance = 1.e-4f) const;
	bool IsKeyHandleValid(FKeyHandle KeyHandle) const { return GetIndexSafe(KeyHandle) != INDEX_NONE; }
	FRichCurveKey& GetKey(FKeyHandle KeyHandle) { return Keys[GetIndexSafe(KeyHandle)]; }
	const FRichCurveKey& GetKey(FKeyHandle KeyHandle) const { return Keys[GetIndexSafe(KeyHandle)]; }
	void SetKeyInterpMode(FKeyHandle KeyHandle, ERichCurveInterpMode NewInterpMode);
	/** Sets the tangents of the keys that have RCTM_Auto. */
	void AutoSetTangents();
	void Reset();

	int32 GetNumKeys() const { return Keys.Num(); }
	/** Both are 0 for a curve without keys. */
	void GetTimeRange(float& MinTime, float& MaxTime) const;
	void GetValueRange(float& MinValue, float& MaxValue) const;
	/** @param InDefaultValue that of a curve without keys and without a default of its own */
	float Eval(float InTime, float InDefaultValue = 0.0f) const;

	bool operator==(const FRichCurve& Other) const;

private:
	int32 GetIndexSafe(FKeyHandle KeyHandle) const;
	/** Keys that were read or set directly get handles. */
	TArray<FKeyHandle>& GetHandles() const;
	/** Brings a time beyond the keys to one among them; what the value differs by then goes to OutOffset. */
	float RemapTime(float InTime, float& OutOffset) const;
	float EvalBetween(const FRichCurveKey& Before, const FRichCurveKey& After, float InTime) const;

	/** One for each key, or fewer. */
	mutable TArray<FKeyHandle> Handles;
};
