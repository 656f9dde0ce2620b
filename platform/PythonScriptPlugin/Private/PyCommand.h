#pragma once

#include "PythonScriptTypes.h"

/** Runs a command; nothing that Python raises leaves it. The interpreter's lock must be held. @return whether it came to its end */
bool RunPythonCommand(FPythonCommandEx& Command);
