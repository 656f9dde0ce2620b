#pragma once

#include "Lexer.h"
#include "Model.h"

#include <optional>

// A parameter's default, given by its C++ tokens, in the notation of metadata CPP_Default_<Parameter>. Nothing for what has none there,
// such as a call of a function.
std::optional<std::string> ConvertDefault(const PropertyType& Type, const std::vector<Token>& Tokens);
