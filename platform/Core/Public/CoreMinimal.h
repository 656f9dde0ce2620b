#pragma once

// Core: strings, containers, smart pointers, delegates, names and texts; files, paths, time, logging, modules and configuration.
//
// It leaves out what neither the plug-in nor the other modules call: math beyond what places, directions and colours need, threads and task
// graphs beyond the game thread's queue, localization files, memory allocators, streaming.

#include "CoreTypes.h"
#include "CoreFwd.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "Delegates/Delegate.h"
#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "Logging/LogMacros.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/Transform.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "Templates/UnrealTemplate.h"
#include "UObject/NameTypes.h"
