#pragma once

#include "CoreTypes.h"

#include <cstring>

struct FMemory
{
	/** The two ranges may overlap. */
	static void* Memmove(void* Dest, const void* Src, SIZE_T Count) { return std::memmove(Dest, Src, Count); }
};
