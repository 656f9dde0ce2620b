#pragma once

#include "CoreMinimal.h"

/** Not NAME_None, and not one that was cut, as FName does with what is too long. */
inline bool IsUsableName(const FName& Name)
{
	constexpr int32 MaxLength = 1000;
	return !Name.IsNone() && Name.ToString().Len() <= MaxLength;
}
