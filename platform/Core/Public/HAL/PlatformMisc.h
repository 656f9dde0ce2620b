#pragma once

#include "Containers/UnrealString.h"

struct CORE_API FPlatformMisc
{
	/** @return an empty text for a variable that is not set */
	static FString GetEnvironmentVariable(const TCHAR* VariableName);
};
