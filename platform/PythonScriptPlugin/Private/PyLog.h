#pragma once

#include "PyText.h"
#include "PythonScriptTypes.h"

// What scripts put out. The interpreter's lock must be held.

/** Each line goes to LogPython, and to the command that runs. */
void LogPythonText(EPythonLogOutputType Type, const FString& Text);

/** While it lives, lines are also appended to a list. */
class FPyLogCapture
{
public:
	explicit FPyLogCapture(TArray<FPythonLogOutputEntry>& Lines);
	~FPyLogCapture();
	UE_NONCOPYABLE(FPyLogCapture)

private:
	TArray<FPythonLogOutputEntry>* Outer;
};

/** A text stream of Python, each line of which is logged. */
class FPyLogStream
{
public:
	explicit FPyLogStream(EPythonLogOutputType InType)
		: Type(InType)
	{
	}

	/** @return how many characters were taken */
	SSIZE_T Write(const py::str& Text);
	/** Logs the line that has no end yet. */
	void Flush();

	static void Bind(py::module_& Module);

private:
	EPythonLogOutputType Type;
	FString Line;
};
