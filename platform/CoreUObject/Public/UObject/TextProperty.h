#pragma once

// The engine keeps FTextProperty in a header of its own.
#include "UObject/ScalarProperty.h"
