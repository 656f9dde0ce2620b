#pragma once

#include "Cursor.h"
#include "Model.h"

enum class BodyKind
{
	Class,
	Struct,
	Interface, // Of the class "I...", whose functions belong to the class that stands for the interface.
};

// Reads a body from its '{' to behind its '}' into Type: the line of GENERATED_BODY, properties, functions and dynamic delegates. All
// other members are passed over. Throws SourceError.
void ReadBody(Cursor& Tokens, Class& Type, BodyKind Kind);
