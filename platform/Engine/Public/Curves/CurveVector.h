#pragma once

#include "Curves/CurveBase.h"
#include "CurveVector.generated.h"

UCLASS(BlueprintType)
class ENGINE_API UCurveVector : public UCurveBase
{
	GENERATED_BODY()

public:
	/** X, Y and Z. */
	UPROPERTY()
	FRichCurve FloatCurves[3];

	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	FVector GetVectorValue(float InTime) const
	{
		return FVector(FloatCurves[0].Eval(InTime), FloatCurves[1].Eval(InTime), FloatCurves[2].Eval(InTime));
	}
	TArray<const FRichCurve*> GetCurves() const override { return { &FloatCurves[0], &FloatCurves[1], &FloatCurves[2] }; }
};
