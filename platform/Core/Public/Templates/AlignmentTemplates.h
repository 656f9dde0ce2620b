#pragma once

#include "CoreTypes.h"

/** The next multiple of Alignment, a power of two, at or above Value. */
template <typename T>
constexpr T Align(T Value, uint64 Alignment)
{
	return static_cast<T>((static_cast<uint64>(Value) + Alignment - 1) & ~(Alignment - 1));
}
