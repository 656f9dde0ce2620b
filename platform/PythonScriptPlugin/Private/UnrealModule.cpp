#include "PyLog.h"
#include "PyModuleFunctions.h"
#include "PyNames.h"
#include "PyObject.h"
#include "PyStruct.h"
#include "PyTypes.h"

namespace
{
/** A string that is told from others. */
py::object MakeStringType(const char* Name)
{
	py::dict Members;
	Members["__module__"] = "unreal";
	return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(&PyType_Type))(
		Name, py::make_tuple(py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(&PyUnicode_Type))), Members);
}

/** What the module does not have itself: a reflected type. */
py::object GetModuleAttribute(const py::str& Name)
{
	const FString Text = ToFString(Name);
	UField* const Type = Text.StartsWith(TEXT("__")) ? nullptr : FPyTypes::Get().FindNative(Text);
	if (!Type)
	{
		RaisePython(PyExc_AttributeError, FString::Printf(TEXT("module 'unreal' has no attribute '%s'"), *Text));
	}
	return FPyTypes::Get().GetType(Type);
}

void BindLog(py::module_& Module)
{
	const struct
	{
		const char* Name;
		EPythonLogOutputType Type;
	} Functions[] = { { "log", EPythonLogOutputType::Info }, { "log_warning", EPythonLogOutputType::Warning },
		{ "log_error", EPythonLogOutputType::Error } };
	for (const auto& Each : Functions)
	{
		Module.def(
			Each.Name, [Type = Each.Type](const py::object& Argument) { LogPythonText(Type, ToFString(py::str(Argument))); },
			py::arg("arg"));
	}
}
}

PYBIND11_EMBEDDED_MODULE(unreal, Module)
{
	py::class_<FPyReference>(Module, "_Reference");
	FPyLogStream::Bind(Module);
	FPyObject::Bind(Module);
	FPyStruct::Bind(Module);
	Module.attr("Name") = MakeStringType("Name");
	Module.attr("Text") = MakeStringType("Text");
	BindLog(Module);
	BindModuleFunctions(Module);
	FPyTypes::Get().Start(Module);
	Module.def("__getattr__", &GetModuleAttribute);
	// The module can't be kept alive by its own function.
	Module.def("__dir__",
		[Itself = py::handle(Module)]
		{
		py::list Names = FPyTypes::Get().GetNames();
		for (const auto& [Name, Value] : py::reinterpret_borrow<py::dict>(Itself.attr("__dict__")))
		{
			Names.append(Name);
		}
		return Names;
	});
}
