#include "PyConverters.h"
#include "PyObject.h"
#include "PyTypes.h"

namespace
{
/** None, or an object of the class. */
UObject* ObjectFromPython(const FProperty* Property, const UClass* Class, py::handle Source)
{
	if (Source.is_none())
	{
		return nullptr;
	}
	UObject* const Object = FPyObject::IsWrapped(Source) ? FPyObject::Unwrap(Source) : FindTypeOfPython(Source);
	if (!Object || !Object->IsA(Class))
	{
		RefuseValue(Property, Source);
	}
	return Object;
}

UClass* ClassFromPython(const FProperty* Property, const UClass* Base, py::handle Source)
{
	UClass* const Class = static_cast<UClass*>(ObjectFromPython(Property, UClass::StaticClass(), Source));
	if (Class && Base && !Class->IsChildOf(Base))
	{
		RaisePython(PyExc_TypeError,
			FString::Printf(TEXT("NativizeProperty: Cannot nativize '%s' as '%s' (%s): it is no child class of '%s'"), *Class->GetName(),
				*Property->GetName(), *Property->GetClass()->GetName(), *Base->GetName()));
	}
	return Class;
}
}

py::object ReadObject(const FProperty* Property, const void* Value)
{
	return FPyObject::Wrap(As<FObjectPropertyBase>(Property)->GetObjectPropertyValue(Value));
}

void WriteObject(const FProperty* Property, void* Value, py::handle Source)
{
	const auto* const Reference = As<FObjectPropertyBase>(Property);
	Reference->SetObjectPropertyValue(Value, ObjectFromPython(Property, Reference->PropertyClass, Source));
}

void WriteClass(const FProperty* Property, void* Value, py::handle Source)
{
	FClassProperty::SetPropertyValue(Value, ClassFromPython(Property, As<FClassProperty>(Property)->MetaClass, Source));
}

/** Loads what it refers to. */
py::object ReadSoft(const FProperty*, const void* Value)
{
	return FPyObject::Wrap(FSoftObjectProperty::GetPropertyValue(Value).LoadSynchronous());
}

/** Takes a path, too, of something that need not be there. */
void WriteSoft(const FProperty* Property, void* Value, py::handle Source)
{
	if (PyUnicode_Check(Source.ptr()))
	{
		FSoftObjectProperty::SetPropertyValue(Value, FSoftObjectPtr(FSoftObjectPath(TextFromPython(Property, Source))));
	}
	else if (const auto* const Classes = CastField<FSoftClassProperty>(Property))
	{
		FSoftObjectProperty::SetPropertyValue(Value, FSoftObjectPtr(ClassFromPython(Property, Classes->MetaClass, Source)));
	}
	else
	{
		const UClass* const Class = As<FSoftObjectProperty>(Property)->PropertyClass;
		FSoftObjectProperty::SetPropertyValue(Value, FSoftObjectPtr(ObjectFromPython(Property, Class, Source)));
	}
}

py::object ReadInterface(const FProperty*, const void* Value)
{
	return FPyObject::Wrap(FInterfaceProperty::GetPropertyValue(Value).GetObject());
}

void WriteInterface(const FProperty* Property, void* Value, py::handle Source)
{
	FScriptInterface Interface;
	UObject* const Object = ObjectFromPython(Property, UObject::StaticClass(), Source);
	if (Object && !Interface.Set(Object, As<FInterfaceProperty>(Property)->InterfaceClass))
	{
		RefuseValue(Property, Source);
	}
	FInterfaceProperty::SetPropertyValue(Value, Interface);
}
