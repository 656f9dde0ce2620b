#include "PyModuleFunctions.h"

#include "Editor.h"
#include "PyObject.h"
#include "PyTypes.h"
#include "UObject/Package.h"

namespace
{
/** None stands for the class of all objects. */
UClass* GetClassOrObject(const py::object& Source)
{
	CheckGameThread();
	return Source.is_none() ? UObject::StaticClass() : FPyObject::UnwrapClass(Source);
}

/** An asset, so no part of one. */
py::object LoadAsset(const py::str& Name, const py::object& Type)
{
	UObject* const Object = StaticLoadObject(GetClassOrObject(Type), nullptr, *ToFString(Name));
	return FPyObject::Wrap(Object && Object->IsAsset() ? Object : nullptr);
}

py::object LoadObjectOf(const py::object& Outer, const py::str& Name, const py::object& Type)
{
	return FPyObject::Wrap(StaticLoadObject(GetClassOrObject(Type), FPyObject::UnwrapOptional(Outer), *ToFString(Name)));
}

py::object LoadClassOf(const py::object& Outer, const py::str& Name, const py::object& Type)
{
	return FPyObject::Wrap(StaticLoadClass(GetClassOrObject(Type), FPyObject::UnwrapOptional(Outer), *ToFString(Name)));
}

py::object FindObjectOf(const py::object& Outer, const py::str& Name, const py::object& Type)
{
	return FPyObject::Wrap(StaticFindObject(GetClassOrObject(Type), FPyObject::UnwrapOptional(Outer), *ToFString(Name)));
}

py::object MakeObject(const py::object& Type, const py::object& Outer, const py::str& Name)
{
	return FPyObject::Wrap(NewObjectForPython(FPyObject::UnwrapClass(Type), FPyObject::UnwrapOptional(Outer), ToFString(Name)));
}

py::object GetDefaultOf(const py::object& Type)
{
	return FPyObject::Wrap(FPyObject::UnwrapClass(Type)->GetDefaultObject());
}

/** A transaction that is open in a "with" block. */
class FPyScopedTransaction
{
public:
	explicit FPyScopedTransaction(const py::str& InDescription)
		: Description(FText::FromString(ToFString(InDescription)))
	{
	}

	void Enter()
	{
		CheckGameThread();
		Index = GEditor ? GEditor->BeginTransaction(TEXT("PythonScript"), Description, nullptr) : INDEX_NONE;
	}
	void Cancel()
	{
		CheckGameThread();
		if (Index >= 0)
		{
			GEditor->CancelTransaction(Index);
			Index = INDEX_NONE;
		}
	}
	void Exit()
	{
		CheckGameThread();
		if (Index >= 0)
		{
			GEditor->EndTransaction();
			Index = INDEX_NONE;
		}
	}

private:
	FText Description;
	/** How many were open before; none when this one is not. */
	int32 Index = INDEX_NONE;
};
}

void BindModuleFunctions(py::module_& Module)
{
	const py::none None;
	Module.def("load_asset", &LoadAsset, py::arg("name"), py::arg("type") = None);
	Module.def("load_object", &LoadObjectOf, py::arg("outer"), py::arg("name"), py::arg("type") = None);
	Module.def("load_class", &LoadClassOf, py::arg("outer"), py::arg("name"), py::arg("type") = None);
	Module.def("find_object", &FindObjectOf, py::arg("outer"), py::arg("name"), py::arg("type") = None);
	Module.def("new_object", &MakeObject, py::arg("type"), py::arg("outer") = None, py::arg("name") = "None");
	Module.def("get_default_object", &GetDefaultOf, py::arg("type"));
	py::class_<FPyScopedTransaction>(Module, "ScopedEditorTransaction")
		.def(py::init<py::str>(), py::arg("desc"))
		.def("cancel", [](FPyScopedTransaction& This) { This.Cancel(); })
		.def("__enter__",
			[](py::object Self)
			{
		Self.cast<FPyScopedTransaction&>().Enter();
		return Self;
		})
		.def("__exit__", [](FPyScopedTransaction& This, const py::args&) { This.Exit(); });
}
