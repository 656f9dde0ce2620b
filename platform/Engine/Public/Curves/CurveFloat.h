#pragma once

#include "Curves/CurveBase.h"
#include "CurveFloat.generated.h"

UCLASS(BlueprintType)
class ENGINE_API UCurveFloat : public UCurveBase
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FRichCurve FloatCurve;

	/** An event track's: only the times of the keys count. */
	UPROPERTY()
	bool bIsEventCurve = false;

	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	float GetFloatValue(float InTime) const { return FloatCurve.Eval(InTime); }
	TArray<const FRichCurve*> GetCurves() const override { return { &FloatCurve }; }
};
