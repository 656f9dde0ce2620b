#include "PyConverters.h"
#include "PyTypes.h"

FString TextFromPython(const FProperty* Property, py::handle Source)
{
	if (!PyUnicode_Check(Source.ptr()))
	{
		RefuseValue(Property, Source);
	}
	return ToFString(py::reinterpret_borrow<py::str>(Source));
}

// Numbers.

namespace
{
/** A whole number, also one that comes as a float. */
py::object ToWholeNumber(const FProperty* Property, py::handle Source)
{
	PyObject* Whole = nullptr;
	if (PyFloat_Check(Source.ptr()) && py::cast<bool>(Source.attr("is_integer")()))
	{
		Whole = PyLong_FromDouble(PyFloat_AS_DOUBLE(Source.ptr()));
	}
	else if (PyIndex_Check(Source.ptr()))
	{
		Whole = PyNumber_Index(Source.ptr());
	}
	else
	{
		RefuseValue(Property, Source);
	}
	if (!Whole)
	{
		throw py::error_already_set();
	}
	return py::reinterpret_steal<py::object>(Whole);
}

void WriteWholeNumber(const FNumericProperty* Property, void* Value, py::handle Source)
{
	const py::object Number = ToWholeNumber(Property, Source);
	if (Property->IsA<FUInt64Property>())
	{
		const unsigned long long Unsigned = PyLong_AsUnsignedLongLong(Number.ptr());
		if (PyErr_Occurred())
		{
			throw py::error_already_set();
		}
		Property->SetIntPropertyValue(Value, static_cast<int64>(Unsigned));
		return;
	}
	int Overflow = 0;
	const int64 Signed = PyLong_AsLongLongAndOverflow(Number.ptr(), &Overflow);
	if (Overflow != 0 || !Property->CanHoldValue(Signed))
	{
		RaisePython(PyExc_OverflowError,
			FString::Printf(TEXT("NativizeProperty: %s is out of the range of '%s' (%s)"), *ToFString(py::str(Number)),
				*Property->GetName(), *Property->GetClass()->GetName()));
	}
	Property->SetIntPropertyValue(Value, Signed);
}
}

py::object ReadNumber(const FProperty* Property, const void* Value)
{
	const auto* const Number = As<FNumericProperty>(Property);
	if (Number->IsFloatingPoint())
	{
		return py::float_(Number->GetFloatingPointPropertyValue(Value));
	}
	return Property->IsA<FUInt64Property>() ? py::int_(Number->GetUnsignedIntPropertyValue(Value))
											: py::int_(Number->GetSignedIntPropertyValue(Value));
}

void WriteNumber(const FProperty* Property, void* Value, py::handle Source)
{
	const auto* const Number = As<FNumericProperty>(Property);
	if (Number->IsInteger())
	{
		WriteWholeNumber(Number, Value, Source);
		return;
	}
	if (!PyFloat_Check(Source.ptr()) && !PyIndex_Check(Source.ptr()))
	{
		RefuseValue(Property, Source);
	}
	const double Double = PyFloat_AsDouble(Source.ptr());
	if (PyErr_Occurred())
	{
		throw py::error_already_set();
	}
	Number->SetFloatingPointPropertyValue(Value, Double);
}

py::object ReadBool(const FProperty* Property, const void* Value)
{
	return py::bool_(As<FBoolProperty>(Property)->GetPropertyValue(Value));
}

void WriteBool(const FProperty* Property, void* Value, py::handle Source)
{
	if (!PyBool_Check(Source.ptr()) && !PyLong_Check(Source.ptr()))
	{
		RefuseValue(Property, Source);
	}
	As<FBoolProperty>(Property)->SetPropertyValue(Value, PyObject_IsTrue(Source.ptr()) == 1);
}

// Enums. A value that the enum has not is a plain number in Python.

namespace
{
py::object EnumToPython(UEnum* Enum, int64 Value)
{
	const py::int_ Number(Value);
	return Enum->IsValidEnumValue(Value) ? FPyTypes::Get().GetType(Enum)(Number) : py::object(Number);
}

void EnumFromPython(const FProperty* Property, UEnum* Enum, const FNumericProperty* Kept, void* Value, py::handle Source)
{
	const py::object Type = FPyTypes::Get().GetType(Enum);
	const bool bMember = py::isinstance(Source, Type);
	if (!bMember && !PyLong_CheckExact(Source.ptr()))
	{
		RefuseValue(Property, Source);
	}
	const int64 Number = PyLong_AsLongLong(Source.ptr());
	if (PyErr_Occurred() || !Enum->IsValidEnumValue(Number))
	{
		PyErr_Clear();
		RefuseValue(Property, Source, PyExc_ValueError);
	}
	Kept->SetIntPropertyValue(Value, Number);
}
}

py::object ReadEnum(const FProperty* Property, const void* Value)
{
	const auto* const Kept = As<FEnumProperty>(Property);
	return EnumToPython(Kept->GetEnum(), Kept->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value));
}

void WriteEnum(const FProperty* Property, void* Value, py::handle Source)
{
	const auto* const Kept = As<FEnumProperty>(Property);
	EnumFromPython(Property, Kept->GetEnum(), Kept->GetUnderlyingProperty(), Value, Source);
}

py::object ReadByte(const FProperty* Property, const void* Value)
{
	UEnum* const Enum = As<FByteProperty>(Property)->Enum;
	return Enum ? EnumToPython(Enum, As<FByteProperty>(Property)->GetPropertyValue(Value)) : ReadNumber(Property, Value);
}

void WriteByte(const FProperty* Property, void* Value, py::handle Source)
{
	const auto* const Byte = As<FByteProperty>(Property);
	if (Byte->Enum)
	{
		EnumFromPython(Property, Byte->Enum, Byte, Value, Source);
	}
	else
	{
		WriteNumber(Property, Value, Source);
	}
}

// Texts.

py::object ReadString(const FProperty* Property, const void* Value)
{
	return ToPyString(As<FStrProperty>(Property)->GetPropertyValue(Value));
}

void WriteString(const FProperty* Property, void* Value, py::handle Source)
{
	FStrProperty::SetPropertyValue(Value, TextFromPython(Property, Source));
}

py::object ReadName(const FProperty*, const void* Value)
{
	return FPyTypes::Get().MakeName(FNameProperty::GetPropertyValue(Value));
}

void WriteName(const FProperty* Property, void* Value, py::handle Source)
{
	FNameProperty::SetPropertyValue(Value, FName(TextFromPython(Property, Source)));
}

py::object ReadText(const FProperty*, const void* Value)
{
	return FPyTypes::Get().MakeText(FTextProperty::GetPropertyValue(Value));
}

void WriteText(const FProperty* Property, void* Value, py::handle Source)
{
	FTextProperty::SetPropertyValue(Value, FText::FromString(TextFromPython(Property, Source)));
}
