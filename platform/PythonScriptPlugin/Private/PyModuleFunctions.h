#pragma once

#include "PyText.h"

/** The functions that "unreal" has itself: loading and finding objects, making them, transactions. */
void BindModuleFunctions(py::module_& Module);
