#include "PyCommand.h"

#include "Misc/FileHelper.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"
#include "PyLog.h"

namespace
{
/** A command's file and its arguments. */
struct FPyFile
{
	FString Path;
	TArray<FString> Arguments;
};

/** @return behind the word */
const TCHAR* ReadWord(const TCHAR* Text, FString& OutWord)
{
	while (FChar::IsWhitespace(*Text))
	{
		++Text;
	}
	int32 Length = 0;
	if (FParse::QuotedString(Text, OutWord, &Length))
	{
		return Text + Length;
	}
	const TCHAR* const Begin = Text;
	while (*Text && !FChar::IsWhitespace(*Text))
	{
		++Text;
	}
	OutWord = FString(static_cast<int32>(Text - Begin), Begin);
	return Text;
}

/** Whether a command is the path of a file, or a file with arguments, rather than a script itself. */
bool FindFile(const FString& Command, FPyFile& OutFile)
{
	// A path may have blanks and quotes in it.
	if (FPaths::FileExists(Command))
	{
		OutFile.Path = FPaths::ConvertRelativePathToFull(Command);
		return true;
	}
	const TCHAR* Text = ReadWord(*Command, OutFile.Path);
	if (!FPaths::GetExtension(OutFile.Path).Equals(TEXT("py"), ESearchCase::IgnoreCase) || OutFile.Path.Contains(TEXT("\n")))
	{
		return false;
	}
	OutFile.Path = FPaths::ConvertRelativePathToFull(OutFile.Path);
	FString Word;
	for (Text = ReadWord(Text, Word); !Word.IsEmpty(); Text = ReadWord(Text, Word))
	{
		OutFile.Arguments.Add(Word);
	}
	return true;
}

py::dict GetPublicScope()
{
	PyObject* const Main = PyImport_AddModule("__main__");
	if (!Main)
	{
		throw py::error_already_set();
	}
	return py::reinterpret_borrow<py::dict>(PyModule_GetDict(Main));
}

py::dict MakePrivateScope()
{
	py::dict Scope;
	Scope["__name__"] = "__main__";
	Scope["__builtins__"] = py::reinterpret_borrow<py::object>(PyEval_GetBuiltins());
	return Scope;
}

/**
 * By the functions of C, since a script may have replaced Python's.
 * @param Source bytes, whose encoding Python finds out
 * @param Start Py_file_input and so on
 */
py::object CompileAndRun(const py::bytes& Source, const py::str& Name, int Start, const py::dict& Scope)
{
	char* Text = nullptr;
	// Raises for a null byte.
	if (PyBytes_AsStringAndSize(Source.ptr(), &Text, nullptr) != 0)
	{
		throw py::error_already_set();
	}
	const auto Code = py::reinterpret_steal<py::object>(Py_CompileStringObject(Text, Name.ptr(), Start, nullptr, -1));
	PyObject* const Value = Code ? PyEval_EvalCode(Code.ptr(), Scope.ptr(), Scope.ptr()) : nullptr;
	if (!Value)
	{
		throw py::error_already_set();
	}
	return py::reinterpret_steal<py::object>(Value);
}

py::object RunText(const FString& Text, int Start, const py::dict& Scope)
{
	// Bytes are UTF-8 unless they say otherwise.
	const auto Source = py::reinterpret_steal<py::bytes>(PyUnicode_AsUTF8String(ToPyString(Text).ptr()));
	if (!Source)
	{
		throw py::error_already_set();
	}
	return CompileAndRun(Source, "<string>", Start, Scope);
}

py::object RunFile(const FPyFile& File, const py::dict& Scope)
{
	TArray<uint8> Bytes;
	if (!FFileHelper::LoadFileToArray(Bytes, *File.Path))
	{
		RaisePython(PyExc_OSError, FString::Printf(TEXT("the file '%s' can't be read"), *File.Path));
	}
	py::list Arguments;
	Arguments.append(ToPyString(File.Path));
	for (const FString& Argument : File.Arguments)
	{
		Arguments.append(ToPyString(Argument));
	}
	PySys_SetObject("argv", Arguments.ptr());
	Scope["__file__"] = ToPyString(File.Path);
	const py::bytes Source(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<SIZE_T>(Bytes.Num()));
	return CompileAndRun(Source, ToPyString(File.Path), Py_file_input, Scope);
}

py::object Run(const FPythonCommandEx& Command)
{
	switch (Command.ExecutionMode)
	{
	case EPythonCommandExecutionMode::ExecuteStatement: return RunText(Command.Command, Py_single_input, GetPublicScope());
	case EPythonCommandExecutionMode::EvaluateStatement: return RunText(Command.Command, Py_eval_input, GetPublicScope());
	case EPythonCommandExecutionMode::ExecuteFile: break;
	}
	const bool bPublic = Command.FileExecutionScope == EPythonFileExecutionScope::Public;
	const py::dict Scope = bPublic ? GetPublicScope() : MakePrivateScope();
	FPyFile File;
	return FindFile(Command.Command, File) ? RunFile(File, Scope) : RunText(Command.Command, Py_file_input, Scope);
}

/** The traceback, or as much of it as can be had after what the script has done. */
FString Describe(const py::error_already_set& Error)
{
	try
	{
		const py::object Trace = Error.trace() ? Error.trace() : py::object(py::none());
		const py::object Lines = py::module_::import("traceback").attr("format_exception")(Error.type(), Error.value(), Trace);
		return ToFString(py::str("").attr("join")(Lines));
	}
	catch (const std::exception&)
	{
		return FUtf8::Decode(Py_TYPE(Error.value().ptr())->tp_name);
	}
}

/** What a script has printed is to be where it was printed to, even when the script has failed. */
void FlushStandardStreams()
{
	for (const char* const Name : { "stdout", "stderr" })
	{
		try
		{
			PyObject* const Stream = PySys_GetObject(Name);
			if (Stream && Stream != Py_None)
			{
				py::reinterpret_borrow<py::object>(Stream).attr("flush")();
			}
		}
		catch (const py::error_already_set&)
		{
			// The script has closed it, or put something else in its place.
		}
	}
}
}

bool RunPythonCommand(FPythonCommandEx& Command)
{
	bool bSucceeded = false;
	try
	{
		const py::object Value = Run(Command);
		Command.CommandResult = ToFString(py::repr(Value));
		bSucceeded = true;
	}
	catch (const py::error_already_set& Error)
	{
		Command.CommandResult = Describe(Error);
		FlushStandardStreams();
		LogPythonText(EPythonLogOutputType::Error, Command.CommandResult);
	}
	FlushStandardStreams();
	return bSucceeded;
}
