#include "PyText.h"

FString ToFString(const py::str& Text)
{
	const auto Bytes = py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(Text.ptr(), "utf-16-le", "surrogatepass"));
	if (!Bytes)
	{
		throw py::error_already_set();
	}
	const auto* const Units = reinterpret_cast<const TCHAR*>(PyBytes_AS_STRING(Bytes.ptr()));
	return FString(static_cast<int32>(static_cast<SIZE_T>(PyBytes_GET_SIZE(Bytes.ptr())) / sizeof(TCHAR)), Units);
}

py::str ToPyString(const FString& Text)
{
	constexpr SSIZE_T Unit = sizeof(TCHAR);
	int LittleEndian = -1;
	PyObject* const String = PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(*Text), Text.Len() * Unit, "surrogatepass", &LittleEndian);
	if (!String)
	{
		throw py::error_already_set();
	}
	return py::reinterpret_steal<py::str>(String);
}

void RaisePython(PyObject* Type, const FString& Message)
{
	PyErr_SetObject(Type, ToPyString(Message).ptr());
	throw py::error_already_set();
}
