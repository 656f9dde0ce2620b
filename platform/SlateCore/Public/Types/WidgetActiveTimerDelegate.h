#pragma once

#include "Delegates/Delegate.h"
#include "Types/SlateEnums.h"

/** Gets the platform's seconds and those since the frame before. */
DECLARE_DELEGATE_RetVal_TwoParams(EActiveTimerReturnType, FWidgetActiveTimerDelegate, double, float);
