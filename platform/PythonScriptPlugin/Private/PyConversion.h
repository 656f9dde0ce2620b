#pragma once

#include "PyText.h"
#include "UObject/UnrealType.h"

// Values between C++ and Python, by reflection. What Python raises is thrown. Game thread, with the interpreter's lock.

/** A property's value as Python has it, a copy but for objects; a list for an array of fixed size. */
py::object PropertyToPython(const FProperty* Property, const void* Value);
/** Assigns to a constructed value, which may be half assigned when it throws. */
void PropertyFromPython(const FProperty* Property, void* Value, py::handle Source);

/** Where the value lies in a container, by the names in Python and C++. Raises when there is no such property. */
FProperty* FindPropertyChecked(const UStruct* Type, const FString& Name);
