#pragma once

#include "UObject/Object.h"

// Searches among the objects in memory; garbage is passed over. Results are appended, in the order in which the objects were made.

COREUOBJECT_API void GetObjectsWithOuter(
	const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags);
COREUOBJECT_API void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses = true,
	EObjectFlags ExcludeFlags = RF_ClassDefaultObject);
/** The classes below a class, not itself. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);
