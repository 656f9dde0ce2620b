#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** The next multiple of Alignment, a power of two, at or above Value, which is a number or an address. */
template <typename T>
requires std::is_integral_v<T> || std::is_pointer_v<T>
constexpr T Align(T Value, uint64 Alignment)
{
	return (T)(((uint64)Value + Alignment - 1) & ~(Alignment - 1));
}
