#pragma once

#include "PyReferences.h"
#include "PyText.h"

/** The types of "unreal" that stand for reflected ones, made when they are first needed. Game thread, with the interpreter's lock. */
class FPyTypes
{
public:
	static FPyTypes& Get();

	/** Takes what it needs from the module, which is being made. */
	void Start(const py::module_& Module);
	/** Lets go of everything, before the interpreter ends. */
	void Forget();

	/** Of a class the type of its nearest class of C++; of a struct or enum its own. */
	py::object GetType(UField* Type);
	/** A class, struct or enum of C++ by its name in Python, or null. */
	UField* FindNative(const FString& Name);
	/** The names in Python of all of them. */
	py::list GetNames() const;

	const py::object& GetObjectBase() const { return ObjectBase; }
	const py::object& GetStructBase() const { return StructBase; }
	/** "unreal.Name" and "unreal.Text" are strings that tell what they come from. */
	py::object MakeName(const FName& Name) const { return NameType(ToPyString(Name.ToString())); }
	py::object MakeText(const FText& Text) const { return TextType(ToPyString(Text.ToString())); }

	static void AddProperty(
		const py::object& Type, const FString& Name, const py::cpp_function& Get, const py::object& Set, const FString& Doc);

private:
	struct FType
	{
		TUniquePtr<FPyReference> Reflected;
		py::object Python;
	};

	py::object MakeClass(UClass* Class);
	py::object MakeStruct(UScriptStruct* Struct);
	static py::object MakeEnum(const UEnum* Enum);

	/** A type that derives from another and stands for a reflected one. */
	static py::object Derive(const py::object& Base, UField* Type);

	TMap<UField*, FType> Types;
	/** Those found by name so far. A class that is built anew may be another object. */
	TMap<FString, TUniquePtr<FPyReference>> Named;
	py::object ObjectBase;
	py::object StructBase;
	py::object NameType;
	py::object TextType;
};

/** The class or struct that a type of Python, or what is derived from it in Python, stands for; null for any other object. */
UField* FindTypeOfPython(py::handle Type);
