#pragma once

#include "CoreMinimal.h"

class UPackage;

/**
 * Turns soft references to what was in one package into references to the same in another, in all objects in memory.
 * @param NewNames of the objects that lie directly in the package, by their old names
 * @return the packages that have changed
 */
TArray<UPackage*> ReplaceSoftPaths(FName OldPackage, FName NewPackage, const TMap<FName, FName>& NewNames);
