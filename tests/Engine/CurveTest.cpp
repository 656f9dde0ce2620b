#include "Curves/CurveLinearColor.h"
#include "Engine/TimelineTemplate.h"

#include <gtest/gtest.h>

TEST(RichCurve, KeepsItsKeysInTheOrderOfTimeAndItsHandlesOnThem)
{
	FRichCurve Curve;
	const FKeyHandle Late = Curve.AddKey(2.0f, 20.0f);
	const FKeyHandle Early = Curve.AddKey(0.0f, 1.0f);
	const FKeyHandle Given;
	EXPECT_EQ(Curve.AddKey(2.0f, 21.0f, false, Given), Given);
	EXPECT_EQ(Curve.GetKey(Late).Value, 20.0f);
	EXPECT_EQ(Curve.GetKey(Given).Value, 21.0f);
	EXPECT_EQ(Curve.FindKey(0.0f), Early);
	Curve.DeleteKey(Early);
	EXPECT_FALSE(Curve.IsKeyHandleValid(Early));
	EXPECT_EQ(Curve.GetKey(Late).Value, 20.0f);
	EXPECT_EQ(Curve.UpdateOrAddKey(2.00001f, 5.0f), Late);
	EXPECT_EQ(Curve.GetNumKeys(), 2);
	Curve.AddKey(3.0f, 350.0f, true);
	EXPECT_EQ(Curve.Keys.Last().Value, -10.0f + 0.0f) << "350 degrees are nearest to 21 as -10";
}

TEST(RichCurve, EvaluatesBetweenAndBeyondItsKeys)
{
	struct FCase
	{
		ERichCurveInterpMode Interp;
		ERichCurveExtrapolation Extrap;
		float Time;
		float Value;
	};
	const FCase Cases[] = {
		{ RCIM_Linear, RCCE_Constant, 0.25f, 2.5f },
		{ RCIM_Constant, RCCE_Constant, 0.99f, 0.0f },
		{ RCIM_Constant, RCCE_Constant, 1.0f, 10.0f },
		{ RCIM_Cubic, RCCE_Constant, 0.5f, 5.0f },
		{ RCIM_Cubic, RCCE_Constant, 0.25f, 1.5625f },
		{ RCIM_Linear, RCCE_Constant, -1.0f, 0.0f },
		{ RCIM_Linear, RCCE_Constant, 5.0f, 10.0f },
		{ RCIM_Linear, RCCE_Linear, -1.0f, -10.0f },
		{ RCIM_Linear, RCCE_Linear, 2.0f, 20.0f },
		{ RCIM_Linear, RCCE_Cycle, 3.25f, 2.5f },
		{ RCIM_Linear, RCCE_Cycle, -0.25f, 7.5f },
		{ RCIM_Linear, RCCE_CycleWithOffset, 3.25f, 32.5f },
		{ RCIM_Linear, RCCE_Oscillate, 1.25f, 7.5f },
	};
	for (const FCase& Case : Cases)
	{
		FRichCurve Curve;
		Curve.SetKeyInterpMode(Curve.AddKey(0.0f, 0.0f), Case.Interp);
		Curve.AddKey(1.0f, 10.0f);
		Curve.PreInfinityExtrap = Curve.PostInfinityExtrap = Case.Extrap;
		EXPECT_NEAR(Curve.Eval(Case.Time), Case.Value, 1e-4f) << Case.Interp << " " << Case.Extrap << " " << Case.Time;
	}
	EXPECT_EQ(FRichCurve().Eval(1.0f, 7.0f), 7.0f);
}

TEST(CurveAsset, RangesCoverAllCurvesThatHaveKeys)
{
	UCurveLinearColor* const Curve = NewObject<UCurveLinearColor>();
	Curve->FloatCurves[1].AddKey(2.0f, 5.0f);
	Curve->FloatCurves[2].AddKey(3.0f, -1.0f);
	float Min = 9.0f;
	float Max = 9.0f;
	Curve->GetTimeRange(Min, Max);
	EXPECT_EQ(Min, 2.0f);
	EXPECT_EQ(Max, 3.0f);
	Curve->GetValueRange(Min, Max);
	EXPECT_EQ(Min, -1.0f);
	EXPECT_EQ(Max, 5.0f);
	EXPECT_EQ(Curve->GetLinearColorValue(0.0f), FLinearColor(0.0f, 5.0f, -1.0f, 1.0f));
}

TEST(Timeline, NamesWhatTheCompileMakesOfIt)
{
	UTimelineTemplate* const Timeline = NewObject<UTimelineTemplate>(GetTransientPackage(), FName("Door_Template"));
	EXPECT_EQ(Timeline->GetVariableName(), FName("Door"));
	FTTFloatTrack Track;
	Track.SetTrackName(FName("Angle"), Timeline);
	EXPECT_EQ(Track.GetTrackName(), FName("Angle"));
	EXPECT_EQ(Track.GetPropertyName().ToString(), TEXT("Door_Angle_") + Timeline->TimelineGuid.ToString());
	FTTEventTrack Event;
	Event.SetTrackName(FName("Open"), Timeline);
	EXPECT_EQ(Event.GetFunctionName(), FName("Door__Open__EventFunc"));
	EXPECT_EQ(NewObject<UTimelineTemplate>(GetTransientPackage(), FName("Plain"))->GetVariableName(), FName("Plain"));
}
