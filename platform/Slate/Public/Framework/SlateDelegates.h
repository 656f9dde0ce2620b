#pragma once

#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"

DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
DECLARE_DELEGATE_RetVal_TwoParams(FReply, FOnKeyDown, const FGeometry&, const FKeyEvent&);
