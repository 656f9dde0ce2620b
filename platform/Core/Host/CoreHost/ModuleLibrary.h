#pragma once

#include "CoreTypes.h"

/**
 * The function of IMPLEMENT_MODULE in a library that was loaded; null when the library itself has none. The dynamic linker's own search would
 * go on to those of the libraries that it needs.
 */
CORE_API void* FindModuleEntry(void* Library);
