#include "Curves/RichCurve.h"

#include <algorithm>
#include <cmath>

namespace
{
/** In seconds, so that two keys at one time make no infinite slope. */
constexpr float SmallestSpan = 1.e-4f;
}

FKeyHandle::FKeyHandle()
{
	static uint32 LastIndex = 0;
	Index = ++LastIndex;
}

TArray<FKeyHandle>& FRichCurve::GetHandles() const
{
	Handles.SetNum(std::min(Handles.Num(), Keys.Num()));
	while (Handles.Num() < Keys.Num())
	{
		Handles.Add(FKeyHandle());
	}
	return Handles;
}

int32 FRichCurve::GetIndexSafe(FKeyHandle KeyHandle) const
{
	return GetHandles().Find(KeyHandle);
}

FKeyHandle FRichCurve::AddKey(float InTime, float InValue, bool bUnwindRotation, FKeyHandle KeyHandle)
{
	const FRichCurveKey* const Behind =
		std::upper_bound(Keys.begin(), Keys.end(), InTime, [](float Time, const FRichCurveKey& Key) { return Time < Key.Time; });
	const int32 Index = static_cast<int32>(Behind - Keys.GetData());
	if (bUnwindRotation && Index > 0)
	{
		InValue += 360.0f * std::round((Keys[Index - 1].Value - InValue) / 360.0f);
	}
	GetHandles().Insert(KeyHandle, Index);
	Keys.Insert(FRichCurveKey(InTime, InValue), Index);
	return KeyHandle;
}

FKeyHandle FRichCurve::UpdateOrAddKey(float InTime, float InValue, bool bUnwindRotation, float KeyTimeTolerance)
{
	const FKeyHandle Found = FindKey(InTime, KeyTimeTolerance);
	if (!IsKeyHandleValid(Found))
	{
		return AddKey(InTime, InValue, bUnwindRotation);
	}
	GetKey(Found).Value = InValue;
	return Found;
}

void FRichCurve::DeleteKey(FKeyHandle KeyHandle)
{
	const int32 Index = GetIndexSafe(KeyHandle);
	if (Index != INDEX_NONE)
	{
		Keys.RemoveAt(Index);
		Handles.RemoveAt(Index);
	}
}

FKeyHandle FRichCurve::FindKey(float KeyTime, float KeyTimeTolerance) const
{
	const int32 Index = Keys.IndexOfByPredicate([=](const FRichCurveKey& Key) { return std::abs(Key.Time - KeyTime) <= KeyTimeTolerance; });
	return Index == INDEX_NONE ? FKeyHandle::Invalid() : GetHandles()[Index];
}

void FRichCurve::SetKeyInterpMode(FKeyHandle KeyHandle, ERichCurveInterpMode NewInterpMode)
{
	GetKey(KeyHandle).InterpMode = NewInterpMode;
	AutoSetTangents();
}

void FRichCurve::AutoSetTangents()
{
	for (int32 Index = 0; Index < Keys.Num(); ++Index)
	{
		if (Keys[Index].TangentMode != RCTM_Auto)
		{
			continue;
		}
		float Tangent = 0.0f;
		if (Index > 0 && Index < Keys.Num() - 1)
		{
			const float Span = std::max(SmallestSpan, Keys[Index + 1].Time - Keys[Index - 1].Time);
			Tangent = (Keys[Index + 1].Value - Keys[Index - 1].Value) / Span;
		}
		Keys[Index].ArriveTangent = Keys[Index].LeaveTangent = Tangent;
	}
}

void FRichCurve::Reset()
{
	Keys.Empty();
	Handles.Empty();
}

void FRichCurve::GetTimeRange(float& MinTime, float& MaxTime) const
{
	MinTime = Keys.IsEmpty() ? 0.0f : Keys[0].Time;
	MaxTime = Keys.IsEmpty() ? 0.0f : Keys.Last().Time;
}

void FRichCurve::GetValueRange(float& MinValue, float& MaxValue) const
{
	const auto [Low, High] =
		std::minmax_element(Keys.begin(), Keys.end(), [](const FRichCurveKey& A, const FRichCurveKey& B) { return A.Value < B.Value; });
	MinValue = Keys.IsEmpty() ? 0.0f : Low->Value;
	MaxValue = Keys.IsEmpty() ? 0.0f : High->Value;
}

bool FRichCurve::operator==(const FRichCurve& Other) const
{
	return PreInfinityExtrap == Other.PreInfinityExtrap && PostInfinityExtrap == Other.PostInfinityExtrap &&
		StaticStruct()->CompareScriptStruct(this, &Other);
}

float FRichCurve::RemapTime(float InTime, float& OutOffset) const
{
	const float First = Keys[0].Time;
	const float Duration = Keys.Last().Time - First;
	const bool bBefore = InTime < First;
	const ERichCurveExtrapolation Mode = bBefore ? PreInfinityExtrap : PostInfinityExtrap;
	OutOffset = 0.0f;
	if ((!bBefore && InTime <= Keys.Last().Time) || Duration <= 0.0f || Mode > RCCE_Oscillate)
	{
		return InTime;
	}
	const float Cycle = std::floor((InTime - First) / Duration);
	const float Within = InTime - First - Cycle * Duration;
	if (Mode == RCCE_CycleWithOffset)
	{
		OutOffset = Cycle * (Keys.Last().Value - Keys[0].Value);
	}
	const bool bBackwards = Mode == RCCE_Oscillate && std::fmod(Cycle, 2.0f) != 0.0f;
	return First + (bBackwards ? Duration - Within : Within);
}

float FRichCurve::EvalBetween(const FRichCurveKey& Before, const FRichCurveKey& After, float InTime) const
{
	const float Span = After.Time - Before.Time;
	const float Alpha = Span > 0.0f ? (InTime - Before.Time) / Span : 1.0f;
	switch (Before.InterpMode)
	{
	case RCIM_Linear: return std::lerp(Before.Value, After.Value, Alpha);
	case RCIM_Cubic:
	{
		const float Squared = Alpha * Alpha;
		const float Cubed = Squared * Alpha;
		return (2.0f * Cubed - 3.0f * Squared + 1.0f) * Before.Value + (Cubed - 2.0f * Squared + Alpha) * Span * Before.LeaveTangent +
			(Cubed - Squared) * Span * After.ArriveTangent + (3.0f * Squared - 2.0f * Cubed) * After.Value;
	}
	case RCIM_Constant:
	case RCIM_None: return Alpha < 1.0f ? Before.Value : After.Value;
	}
	return Before.Value;
}

float FRichCurve::Eval(float InTime, float InDefaultValue) const
{
	if (Keys.IsEmpty())
	{
		return DefaultValue == NoDefaultValue ? InDefaultValue : DefaultValue;
	}
	float Offset;
	const float Time = RemapTime(InTime, Offset);
	const FRichCurveKey& First = Keys[0];
	const FRichCurveKey& Last = Keys.Last();
	if (Time < First.Time || Keys.Num() == 1)
	{
		const bool bLinear = PreInfinityExtrap == RCCE_Linear && Keys.Num() > 1;
		const float Slope = bLinear ? (Keys[1].Value - First.Value) / std::max(SmallestSpan, Keys[1].Time - First.Time) : 0.0f;
		return First.Value + Slope * (Time - First.Time);
	}
	if (Time >= Last.Time)
	{
		const FRichCurveKey& Previous = Keys.Last(1);
		const float Slope =
			PostInfinityExtrap == RCCE_Linear ? (Last.Value - Previous.Value) / std::max(SmallestSpan, Last.Time - Previous.Time) : 0.0f;
		return Last.Value + Offset + Slope * (Time - Last.Time);
	}
	const FRichCurveKey* const After =
		std::upper_bound(Keys.begin(), Keys.end(), Time, [](float Wanted, const FRichCurveKey& Key) { return Wanted < Key.Time; });
	return Offset + EvalBetween(*(After - 1), *After, Time);
}
