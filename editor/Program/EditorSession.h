#pragma once

#include "Options.h"

/** Opens the project with all its modules and the plug-in, runs the face, closes everything. @return the program's exit code */
int32 RunEditor(FProgramOptions Options);
