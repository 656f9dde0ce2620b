#pragma once

#include "PyReferences.h"
#include "PyText.h"

/** An object in Python: what instances of the classes of "unreal" hold. Game thread, with the interpreter's lock. */
class FPyObject
{
public:
	/** None for null. */
	static py::object Wrap(UObject* Object);
	static bool IsWrapped(py::handle Source);
	/** Raises for an object that is gone, and on another thread than the game's. */
	static UObject* Unwrap(py::handle Source);
	/** The same, but null for None. */
	static UObject* UnwrapOptional(py::handle Source);
	/** A class, given as its object or as one of Python's types. Raises for anything else. */
	static UClass* UnwrapClass(py::handle Source);

	/** The base of the classes, "_ObjectBase". */
	static void Bind(py::module_& Module);
	/** What only the class Object has: the construction of new objects, and functions of the classes themselves. */
	static void BindRoot(const py::object& Type);

private:
	UObject& GetChecked() const;

	FPyReference Reference;
};

/** An object made by a script. Raises for a class of which there are no objects and a name that is taken. */
UObject* NewObjectForPython(UClass* Class, UObject* Outer, const FString& Name);

/** Raises unless this is the game thread: objects belong to it. */
void CheckGameThread();
