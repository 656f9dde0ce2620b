#pragma once

#include "Model.h"

#include <string>
#include <string_view>

// Reads one header's reflected declarations. Include is how generated code will include it. Throws SourceError.
Header ParseHeader(std::string_view Source, const std::string& Include);
