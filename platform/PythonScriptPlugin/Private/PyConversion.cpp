#include "PyConversion.h"

#include "PyConverters.h"
#include "PyNames.h"

namespace
{
/** Python's own bound on how deep calls go; values may nest without end. */
class FPyRecursion
{
public:
	FPyRecursion()
	{
		if (Py_EnterRecursiveCall(" while a value was converted"))
		{
			throw py::error_already_set();
		}
	}
	~FPyRecursion() { Py_LeaveRecursiveCall(); }
	UE_NONCOPYABLE(FPyRecursion)
};

/** How the values of a kind of property go over. */
struct FConverter
{
	FFieldClass* (*Kind)();
	py::object (*Read)(const FProperty*, const void*);
	void (*Write)(const FProperty*, void*, py::handle);
};

/** The first that fits; kinds that derive from others come before them. */
constexpr FConverter Converters[] = {
	{ &FBoolProperty::StaticClass, &ReadBool, &WriteBool },
	{ &FEnumProperty::StaticClass, &ReadEnum, &WriteEnum },
	{ &FByteProperty::StaticClass, &ReadByte, &WriteByte },
	{ &FNumericProperty::StaticClass, &ReadNumber, &WriteNumber },
	{ &FStrProperty::StaticClass, &ReadString, &WriteString },
	{ &FNameProperty::StaticClass, &ReadName, &WriteName },
	{ &FTextProperty::StaticClass, &ReadText, &WriteText },
	{ &FClassProperty::StaticClass, &ReadObject, &WriteClass },
	{ &FSoftObjectProperty::StaticClass, &ReadSoft, &WriteSoft },
	{ &FObjectPropertyBase::StaticClass, &ReadObject, &WriteObject },
	{ &FInterfaceProperty::StaticClass, &ReadInterface, &WriteInterface },
	{ &FStructProperty::StaticClass, &ReadStruct, &WriteStruct },
	{ &FArrayProperty::StaticClass, &ReadArray, &WriteArray },
	{ &FSetProperty::StaticClass, &ReadSet, &WriteSet },
	{ &FMapProperty::StaticClass, &ReadMap, &WriteMap },
};

const FConverter& FindConverter(const FProperty* Property)
{
	for (const FConverter& Each : Converters)
	{
		if (Property->GetClass()->IsChildOf(Each.Kind()) && Property->HasType())
		{
			return Each;
		}
	}
	RaisePython(PyExc_TypeError,
		FString::Printf(TEXT("'%s' (%s) has no counterpart in Python"), *Property->GetName(), *Property->GetClass()->GetName()));
}
}

py::object PropertyToPython(const FProperty* Property, const void* Value)
{
	const FPyRecursion Guard;
	const FConverter& Converter = FindConverter(Property);
	if (Property->ArrayDim == 1)
	{
		return Converter.Read(Property, Value);
	}
	py::list Result;
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		Result.append(Converter.Read(Property, static_cast<const uint8*>(Value) + Index * Property->GetElementSize()));
	}
	return Result;
}

void PropertyFromPython(const FProperty* Property, void* Value, py::handle Source)
{
	const FPyRecursion Guard;
	const FConverter& Converter = FindConverter(Property);
	if (Property->ArrayDim == 1)
	{
		Converter.Write(Property, Value, Source);
		return;
	}
	int32 Index = 0;
	for (const py::handle Item : IterateItems(Property, Source))
	{
		if (Index < Property->ArrayDim)
		{
			Converter.Write(Property, static_cast<uint8*>(Value) + Index * Property->GetElementSize(), Item);
		}
		++Index;
	}
	if (Index != Property->ArrayDim)
	{
		RaisePython(PyExc_ValueError, FString::Printf(TEXT("'%s' has %d values, not %d"), *Property->GetName(), Property->ArrayDim, Index));
	}
}

FProperty* FindPropertyChecked(const UStruct* Type, const FString& Name)
{
	if (FProperty* const Property = FindPropertyByPythonName(Type, Name))
	{
		return Property;
	}
	RaisePython(PyExc_Exception,
		FString::Printf(
			TEXT("%s: Failed to find property '%s' for attribute '%s' on '%s'"), *Type->GetName(), *Name, *Name, *Type->GetName()));
}

void RefuseValue(const FProperty* Property, py::handle Source, PyObject* Type)
{
	RaisePython(Type,
		FString::Printf(TEXT("NativizeProperty: Cannot nativize '%s' as '%s' (%s)"), UTF8_TO_TCHAR(Py_TYPE(Source.ptr())->tp_name),
			*Property->GetName(), *Property->GetClass()->GetName()));
}
