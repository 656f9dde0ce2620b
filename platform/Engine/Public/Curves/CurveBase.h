#pragma once

#include "Curves/RichCurve.h"
#include "UObject/UObjectGlobals.h"
#include "CurveBase.generated.h"

/** An asset of curves. */
UCLASS(Abstract, BlueprintType)
class ENGINE_API UCurveBase : public UObject
{
	GENERATED_BODY()

public:
	/** Each curve of the asset, in the order of its channels. */
	virtual TArray<const FRichCurve*> GetCurves() const { return {}; }
	/** Over all of its curves; 0 to 0 without keys. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	void GetTimeRange(float& MinTime, float& MaxTime) const;
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	void GetValueRange(float& MinValue, float& MaxValue) const;
};
