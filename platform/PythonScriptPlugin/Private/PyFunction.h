#pragma once

#include "PyText.h"
#include "UObject/Class.h"

// Functions called by reflection. Arguments come by position or by name; those left out have their defaults. The result is what the
// function returns with what it gives back in its parameters, a tuple when they are several. With a bool beside other results these are
// None when it is false, and it is left out when it is true. What Python raises is thrown.

/** By the names in Python and C++. */
py::object CallFunction(UObject& Target, const FString& Name, const py::tuple& Arguments, const py::dict& Named);

/** Gives a type of Python the functions that a class declares. */
void BindFunctions(const py::object& Type, const UClass* Class);
