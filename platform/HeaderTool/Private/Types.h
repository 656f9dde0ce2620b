#pragma once

#include "Cursor.h"
#include "Model.h"

struct DeclaredType
{
	PropertyType Type;
	bool bConst = false;
	bool bReference = false;
};

// Reads the type of a property, parameter or result: what reflection has, told by the engine's prefixes
// (U and A classes by pointer, F structs, E enums). Throws SourceError for any other type.
DeclaredType ReadType(Cursor& Tokens);
