#pragma once

#include "UObject/UnrealType.h"

// What things are called in Python.

/** "RelativeLocation" is "relative_location", "BPTYPE_Normal" as a constant "BPTYPE_NORMAL". */
FString MakePythonName(const FString& Name, bool bConstant = false);
/** Without the "b" of a bool. */
FString GetPythonName(const FProperty* Property);
/** What the sources give it as ScriptName, or else its own without "K2_". */
FString GetPythonName(const UFunction* Function);
/** Of a class, struct or enum; an enum's is without "E". */
FString GetPythonTypeName(const UField* Type);

/** By the name in Python or in C++, among the type's and its super types' properties. */
FProperty* FindPropertyByPythonName(const UStruct* Type, const FString& Name);
/** The same for the functions that scripts may call; those of the class's interfaces are among them. */
UFunction* FindFunctionByPythonName(const UClass* Class, const FString& Name);
/** Whether scripts may call it. */
bool IsScriptFunction(const UFunction* Function);
