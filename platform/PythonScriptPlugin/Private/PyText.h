#pragma once

#include "PyBind.h"

/** Text from and to Python, code unit by code unit: halves of surrogate pairs survive. The lock must be held. */
FString ToFString(const py::str& Text);
py::str ToPyString(const FString& Text);

/** Raises a Python exception. @param Type PyExc_TypeError and so on */
[[noreturn]] void RaisePython(PyObject* Type, const FString& Message);

/** Holds the interpreter's lock, on whatever thread. */
class FPyScopedLock
{
public:
	FPyScopedLock()
		: State(PyGILState_Ensure())
	{
	}
	~FPyScopedLock() { PyGILState_Release(State); }
	UE_NONCOPYABLE(FPyScopedLock)

private:
	PyGILState_STATE State;
};
