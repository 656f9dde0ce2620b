#pragma once

#include "Engine/Blueprint.h"

class FCompilerResultsLog;
class UBlueprintGeneratedClass;

/**
 * Makes the members of a Blueprint's class: the class has none when it comes, and it has its super class.
 * @param Previous what the class had before, for signatures that nothing else tells; may be null
 */
void BuildBlueprintClass(const UBlueprint& Blueprint, UBlueprintGeneratedClass& Class, const UClass* Previous, FCompilerResultsLog& Log);
