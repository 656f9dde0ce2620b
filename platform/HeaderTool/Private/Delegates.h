#pragma once

#include "Cursor.h"
#include "Model.h"

// Whether DECLARE_DYNAMIC_..._DELEGATE...( stands here.
bool IsAtDelegate(const Cursor& Tokens);

// Reads such a declaration. Throws SourceError.
Delegate ReadDelegate(Cursor& Tokens);
