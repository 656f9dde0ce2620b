#include "Curves/CurveBase.h"

namespace
{
/** The range that holds those of all curves that have keys. */
void JoinRanges(const TArray<const FRichCurve*>& Curves, void (FRichCurve::*GetRange)(float&, float&) const, float& OutMin, float& OutMax)
{
	OutMin = OutMax = 0.0f;
	bool bFirst = true;
	for (const FRichCurve* const Curve : Curves)
	{
		if (Curve->GetNumKeys() == 0)
		{
			continue;
		}
		float Min;
		float Max;
		(Curve->*GetRange)(Min, Max);
		OutMin = bFirst ? Min : std::min(OutMin, Min);
		OutMax = bFirst ? Max : std::max(OutMax, Max);
		bFirst = false;
	}
}
}

void UCurveBase::GetTimeRange(float& MinTime, float& MaxTime) const
{
	JoinRanges(GetCurves(), &FRichCurve::GetTimeRange, MinTime, MaxTime);
}

void UCurveBase::GetValueRange(float& MinValue, float& MaxValue) const
{
	JoinRanges(GetCurves(), &FRichCurve::GetValueRange, MinValue, MaxValue);
}
