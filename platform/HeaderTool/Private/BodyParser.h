#pragma once

#include "Cursor.h"
#include "Model.h"

// Reads a class's or struct's body from its '{' to behind its '}' into Type: the line of GENERATED_BODY, properties and
// functions. All other members are passed over. Throws SourceError.
void ReadBody(Cursor& Tokens, Class& Type, bool bStruct);
