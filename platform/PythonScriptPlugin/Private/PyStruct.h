#pragma once

#include "PyBlock.h"
#include "PyReferences.h"
#include "PyText.h"

/** A struct in Python: what instances of the structs of "unreal" hold, a value of their own. Game thread, with the interpreter's lock. */
class FPyStruct final : public FPyReferencer
{
public:
	/** A copy. */
	static py::object Wrap(UScriptStruct* Struct, const void* Value);
	/** Takes a struct of the type or one derived from it, a sequence of its members' values, or a dict by their names. @return false for
	 * anything else */
	static bool Assign(UScriptStruct* Struct, void* Value, py::handle Source);

	/** The base of the structs, "_StructBase". */
	static void Bind(py::module_& Module);
	/** Gives a type of Python the properties that a struct declares. */
	static void BindProperties(const py::object& Type, const UScriptStruct* Struct);

	void AddReferences(FArchive& Ar) override;

private:
	/** Makes the value, empty. */
	void Init(const py::object& Self);
	UScriptStruct* GetStruct() const;
	/** Raises when the struct's type is gone, and on another thread than the game's. */
	void* GetChecked() const;
	FString ToText() const;

	FPyReference Type;
	TUniquePtr<FPyBlock> Block;
};
