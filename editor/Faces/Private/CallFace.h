#pragma once

#include "EditorFaces.h"

/** Runs the tools in order and prints a line {tool, content, is_error} for each. @return 1 when one of them failed, else 0 */
int32 RunToolCalls(const TArray<FToolCall>& Calls);
