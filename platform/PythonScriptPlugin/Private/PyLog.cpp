#include "PyLog.h"

DEFINE_LOG_CATEGORY_STATIC(LogPython, Log, All);

namespace
{
TArray<FPythonLogOutputEntry>* Captured = nullptr;

void LogLine(EPythonLogOutputType Type, const FString& Line)
{
	switch (Type)
	{
	case EPythonLogOutputType::Info: UE_LOG(LogPython, Log, TEXT("%s"), *Line); break;
	case EPythonLogOutputType::Warning: UE_LOG(LogPython, Warning, TEXT("%s"), *Line); break;
	case EPythonLogOutputType::Error: UE_LOG(LogPython, Error, TEXT("%s"), *Line); break;
	}
	if (Captured)
	{
		FPythonLogOutputEntry& Entry = Captured->AddDefaulted_GetRef();
		Entry.Type = Type;
		Entry.Output = Line;
	}
}
}

void LogPythonText(EPythonLogOutputType Type, const FString& Text)
{
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	for (const FString& Line : Lines)
	{
		LogLine(Type, Line);
	}
}

FPyLogCapture::FPyLogCapture(TArray<FPythonLogOutputEntry>& Lines)
	: Outer(Captured)
{
	Captured = &Lines;
}

FPyLogCapture::~FPyLogCapture()
{
	Captured = Outer;
}

SSIZE_T FPyLogStream::Write(const py::str& Text)
{
	const FString Given = ToFString(Text);
	std::u16string_view Rest = Given.View();
	for (SIZE_T End = Rest.find(u'\n'); End != std::u16string_view::npos; End = Rest.find(u'\n'))
	{
		Line.AppendChars(Rest.data(), static_cast<int32>(End));
		LogLine(Type, Line);
		Line.Reset();
		Rest.remove_prefix(End + 1);
	}
	Line.AppendChars(Rest.data(), static_cast<int32>(Rest.size()));
	return PyUnicode_GET_LENGTH(Text.ptr());
}

void FPyLogStream::Flush()
{
	if (!Line.IsEmpty())
	{
		LogLine(Type, Line);
		Line.Reset();
	}
}

void FPyLogStream::Bind(py::module_& Module)
{
	// By reference: a pointer to a member would take None for an object.
	py::class_<FPyLogStream>(Module, "_LogStream")
		.def("write", [](FPyLogStream& This, const py::str& Text) { return This.Write(Text); })
		.def("flush", [](FPyLogStream& This) { This.Flush(); })
		// Other streams may close; this one is there for the next script.
		.def("close", [](FPyLogStream& This) { This.Flush(); })
		.def("isatty", [](const FPyLogStream&) { return false; })
		.def("readable", [](const FPyLogStream&) { return false; })
		.def("seekable", [](const FPyLogStream&) { return false; })
		.def("writable", [](const FPyLogStream&) { return true; })
		.def_property_readonly_static("closed", [](const py::object&) { return false; })
		.def_property_readonly_static("encoding", [](const py::object&) { return "utf-8"; })
		.def_property_readonly_static("errors", [](const py::object&) { return "surrogatepass"; });
}
