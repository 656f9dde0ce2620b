#pragma once

#include "Curves/CurveBase.h"
#include "CurveLinearColor.generated.h"

UCLASS(BlueprintType)
class ENGINE_API UCurveLinearColor : public UCurveBase
{
	GENERATED_BODY()

public:
	/** R, G, B and A. */
	UPROPERTY()
	FRichCurve FloatCurves[4];

	/** Without keys for its opacity a colour is opaque. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	FLinearColor GetLinearColorValue(float InTime) const
	{
		return FLinearColor(
			FloatCurves[0].Eval(InTime), FloatCurves[1].Eval(InTime), FloatCurves[2].Eval(InTime), FloatCurves[3].Eval(InTime, 1.0f));
	}
	TArray<const FRichCurve*> GetCurves() const override { return { &FloatCurves[0], &FloatCurves[1], &FloatCurves[2], &FloatCurves[3] }; }
};
