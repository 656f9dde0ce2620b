#pragma once

#include "CoreMinimal.h"

// The engine's macro stands in the way of functions of that name.
#pragma push_macro("check")
#undef check
#include <pybind11/embed.h>
#include <pybind11/pybind11.h>
#pragma pop_macro("check")

namespace py = pybind11;
