#pragma once

#include "Model.h"

// Construct is the name of the function that makes the class's reflection: blocks of arguments are declared in its _Statics.

// The function through which reflection calls: arguments and result lie in one block.
std::string WriteThunk(const Class& Type, const std::string& Construct, const Function& Each);

// What C++ calls for an event: the Blueprint's function where a Blueprint has one, otherwise the C++ code where there is some.
std::string WriteEvent(const Class& Type, const std::string& Construct, const Function& Each);
