#include "PyObject.h"

#include "CoreGlobals.h"
#include "Engine/World.h"
#include "PyFunction.h"
#include "PyNames.h"
#include "PyProperty.h"
#include "PyTypes.h"

namespace
{
UClass* GetClassOf(const py::object& Type)
{
	return CastChecked<UClass>(FindTypeOfPython(Type));
}

py::object CastTo(const py::object& Type, const py::object& Source)
{
	UObject* const Object = FPyObject::UnwrapOptional(Source);
	if (!Object || !Object->IsA(GetClassOf(Type)))
	{
		RaisePython(PyExc_TypeError,
			FString::Printf(
				TEXT("Cannot cast type '%s' to '%s'"), UTF8_TO_TCHAR(Py_TYPE(Source.ptr())->tp_name), *GetClassOf(Type)->GetName()));
	}
	return FPyObject::Wrap(Object);
}
}

void CheckGameThread()
{
	if (!IsInGameThread())
	{
		RaisePython(PyExc_RuntimeError, TEXT("Objects of the editor can be used on its main thread alone."));
	}
}

UObject* NewObjectForPython(UClass* Class, UObject* Outer, const FString& Name)
{
	if (Class->HasAnyClassFlags(CLASS_Abstract) || Class->IsChildOf(UField::StaticClass()) || Class->IsChildOf(UPackage::StaticClass()))
	{
		RaisePython(PyExc_Exception, FString::Printf(TEXT("%s: no object can be made of this class"), *Class->GetName()));
	}
	UObject* const Place = Outer ? Outer : GetTransientPackage();
	const FName ObjectName(Name);
	FText Reason;
	if (!ObjectName.IsNone() && !ObjectName.IsValidObjectName(Reason))
	{
		RaisePython(PyExc_Exception, FString::Printf(TEXT("%s: %s"), *Class->GetName(), *Reason.ToString()));
	}
	if (!ObjectName.IsNone() && StaticFindObjectFast(UObject::StaticClass(), Place, ObjectName))
	{
		RaisePython(PyExc_Exception,
			FString::Printf(TEXT("%s: there is an object '%s' in '%s' already"), *Class->GetName(), *Name, *Place->GetPathName()));
	}
	return NewObject<UObject>(Place, Class, ObjectName);
}

py::object FPyObject::Wrap(UObject* Object)
{
	if (!IsValid(Object))
	{
		return py::none();
	}
	const py::object Type = FPyTypes::Get().GetType(Object->GetClass());
	py::object Wrapper = Type.attr("__new__")(Type);
	FPyTypes::Get().GetObjectBase().attr("__init__")(Wrapper);
	Wrapper.cast<FPyObject&>().Reference.Set(Object);
	return Wrapper;
}

bool FPyObject::IsWrapped(py::handle Source)
{
	return py::isinstance(Source, FPyTypes::Get().GetObjectBase());
}

UObject* FPyObject::Unwrap(py::handle Source)
{
	return &Source.cast<FPyObject&>().GetChecked();
}

UObject* FPyObject::UnwrapOptional(py::handle Source)
{
	return Source.is_none() ? nullptr : Unwrap(Source);
}

UClass* FPyObject::UnwrapClass(py::handle Source)
{
	CheckGameThread();
	UClass* const Class = Cast<UClass>(IsWrapped(Source) ? Unwrap(Source) : FindTypeOfPython(Source));
	if (!Class)
	{
		RaisePython(PyExc_TypeError, FString::Printf(TEXT("'%s' is no class"), UTF8_TO_TCHAR(Py_TYPE(Source.ptr())->tp_name)));
	}
	return Class;
}

UObject& FPyObject::GetChecked() const
{
	CheckGameThread();
	UObject* const Object = Reference.Get();
	if (!Object)
	{
		RaisePython(PyExc_Exception, TEXT("The object is gone: it was deleted."));
	}
	return *Object;
}

void FPyObject::Bind(py::module_& Module)
{
	const auto Self = [](const FPyObject& This) -> UObject& { return This.GetChecked(); };
	py::class_<FPyObject>(Module, "_ObjectBase")
		.def(py::init<>())
		.def("get_name", [Self](const FPyObject& This) { return ToPyString(Self(This).GetName()); })
		.def("get_fname", [Self](const FPyObject& This) { return FPyTypes::Get().MakeName(Self(This).GetFName()); })
		.def("get_path_name", [Self](const FPyObject& This) { return ToPyString(Self(This).GetPathName()); })
		.def("get_full_name", [Self](const FPyObject& This) { return ToPyString(Self(This).GetFullName()); })
		.def("get_class", [Self](const FPyObject& This) { return Wrap(Self(This).GetClass()); })
		.def("get_outer", [Self](const FPyObject& This) { return Wrap(Self(This).GetOuter()); })
		.def("get_outermost", [Self](const FPyObject& This) { return Wrap(Self(This).GetOutermost()); })
		.def("get_package", [Self](const FPyObject& This) { return Wrap(Self(This).GetPackage()); })
		.def(
			"get_typed_outer",
			[Self](const FPyObject& This, const py::object& Type) { return Wrap(Self(This).GetTypedOuter(UnwrapClass(Type))); },
			py::arg("type"))
		.def(
			"modify", [Self](const FPyObject& This, bool bAlwaysMarkDirty) { return Self(This).Modify(bAlwaysMarkDirty); },
			py::arg("always_mark_dirty") = true)
		.def(
			"get_editor_property",
			[Self](const FPyObject& This, const py::str& Name) { return GetEditorProperty(Self(This), ToFString(Name)); }, py::arg("name"))
		.def(
			"set_editor_property",
			[Self](const FPyObject& This, const py::str& Name, const py::object& Value)
			{ SetEditorProperty(Self(This), ToFString(Name), Value); },
			py::arg("name"), py::arg("value"))
		.def(
			"set_editor_properties",
			[Self](const FPyObject& This, const py::dict& Values)
			{
		for (const auto& [Name, Value] : Values)
		{
			SetEditorProperty(Self(This), ToFString(py::str(Name)), Value);
		}
			},
			py::arg("properties"))
		.def(
			"call_method",
			[Self](const FPyObject& This, const py::str& Name, const py::tuple& Arguments, const py::dict& Named)
			{ return CallFunction(Self(This), ToFString(Name), Arguments, Named); },
			py::arg("name"), py::arg("args") = py::tuple(), py::arg("kwargs") = py::dict())
		.def("__eq__",
			[](const FPyObject& This, const py::object& Other)
			{ return IsWrapped(Other) && Other.cast<FPyObject&>().Reference.Get() == This.Reference.Get(); })
		.def("__hash__", [](const FPyObject& This) { return reinterpret_cast<SSIZE_T>(This.Reference.Get()); })
		.def("__repr__",
			[](const FPyObject& This)
			{
		const UObject* const Object = This.Reference.Get();
		return ToPyString(Object ? FString::Printf(TEXT("<Object '%s' Class '%s'>"), *Object->GetPathName(), *Object->GetClass()->GetName())
								 : FString(TEXT("<Object (deleted)>")));
		});
}

void FPyObject::BindRoot(const py::object& Type)
{
	const auto Add = [&Type](const char* Name, auto Function, const auto&... Extra)
	{ py::setattr(Type, Name, py::cpp_function(Function, py::name(Name), py::is_method(Type), Extra...)); };
	Add(
		"__init__",
		[](const py::object& Self, const py::object& Outer, const py::str& Name)
		{
		CheckGameThread();
		FPyTypes::Get().GetObjectBase().attr("__init__")(Self);
		UObject* const Object = NewObjectForPython(GetClassOf(py::type::of(Self)), UnwrapOptional(Outer), ToFString(Name));
		Self.cast<FPyObject&>().Reference.Set(Object);
		},
		py::arg("outer") = py::none(), py::arg("name") = "None");

	const auto AddToClass = [&Type](const char* Name, auto Function, const auto&... Extra)
	{
		const py::cpp_function Callable(Function, py::name(Name), Extra...);
		PyObject* const Method = PyClassMethod_New(Callable.ptr());
		py::setattr(Type, Name, py::reinterpret_steal<py::object>(Method));
	};
	AddToClass("static_class", [](const py::object& Class) { return Wrap(GetClassOf(Class)); });
	AddToClass("get_default_object", [](const py::object& Class) { return Wrap(GetClassOf(Class)->GetDefaultObject()); });
	AddToClass("cast", &CastTo, py::arg("cls"), py::arg("object"));
}
