#pragma once

#include "PyConversion.h"

// How the values of each kind of property go over, one value at a time. PyConversion.cpp has the table of them.

/** Raises that a value of Python is none for the property. */
[[noreturn]] void RefuseValue(const FProperty* Property, py::handle Source, PyObject* Type = PyExc_TypeError);
/** A text that is none of Python's other types. */
FString TextFromPython(const FProperty* Property, py::handle Source);
/** The items of a list, tuple, set and so on; of nothing else. */
py::iterator IterateItems(const FProperty* Property, py::handle Source);

/** A property that is known to be of a kind. */
template <typename PropertyType>
const PropertyType* As(const FProperty* Property)
{
	return static_cast<const PropertyType*>(Property);
}

py::object ReadBool(const FProperty* Property, const void* Value);
py::object ReadEnum(const FProperty* Property, const void* Value);
py::object ReadByte(const FProperty* Property, const void* Value);
py::object ReadNumber(const FProperty* Property, const void* Value);
py::object ReadString(const FProperty* Property, const void* Value);
py::object ReadName(const FProperty* Property, const void* Value);
py::object ReadText(const FProperty* Property, const void* Value);
py::object ReadObject(const FProperty* Property, const void* Value);
py::object ReadSoft(const FProperty* Property, const void* Value);
py::object ReadInterface(const FProperty* Property, const void* Value);
py::object ReadStruct(const FProperty* Property, const void* Value);
py::object ReadArray(const FProperty* Property, const void* Value);
py::object ReadSet(const FProperty* Property, const void* Value);
py::object ReadMap(const FProperty* Property, const void* Value);

void WriteBool(const FProperty* Property, void* Value, py::handle Source);
void WriteEnum(const FProperty* Property, void* Value, py::handle Source);
void WriteByte(const FProperty* Property, void* Value, py::handle Source);
void WriteNumber(const FProperty* Property, void* Value, py::handle Source);
void WriteString(const FProperty* Property, void* Value, py::handle Source);
void WriteName(const FProperty* Property, void* Value, py::handle Source);
void WriteText(const FProperty* Property, void* Value, py::handle Source);
void WriteClass(const FProperty* Property, void* Value, py::handle Source);
void WriteSoft(const FProperty* Property, void* Value, py::handle Source);
void WriteObject(const FProperty* Property, void* Value, py::handle Source);
void WriteInterface(const FProperty* Property, void* Value, py::handle Source);
void WriteStruct(const FProperty* Property, void* Value, py::handle Source);
void WriteArray(const FProperty* Property, void* Value, py::handle Source);
void WriteSet(const FProperty* Property, void* Value, py::handle Source);
void WriteMap(const FProperty* Property, void* Value, py::handle Source);
