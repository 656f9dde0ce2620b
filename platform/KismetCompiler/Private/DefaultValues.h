#pragma once

#include "Engine/Blueprint.h"

class FCompilerResultsLog;

/**
 * Gives the class default object the defaults that the variables' descriptions have as text: those of new variables, those of which the
 * type has changed, and those of which the text is another one than at the last compile. All others are the object's own matter.
 * @param Previous the class's layout of before; null for a new class
 */
void SeedDefaultValues(UBlueprint& Blueprint, const UClass* Previous, FCompilerResultsLog& Log);
