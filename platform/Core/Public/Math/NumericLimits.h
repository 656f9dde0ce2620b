#pragma once

#include "CoreTypes.h"

#define MIN_int32 static_cast<int32>(0x80000000)
#define MAX_int32 static_cast<int32>(0x7fffffff)
