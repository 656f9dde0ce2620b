#pragma once

#include "UObject/Class.h"

// What it takes to make a class anew while there are objects of it, as the compile of a Blueprint does. Game thread.

/** Appends the objects of exactly that class: its default object and garbage, too. */
COREUOBJECT_API void GetAllInstances(const UClass* Class, TArray<UObject*>& Results);

/**
 * Moves a class's layout to a new transient class "REINST_<Name>": properties, functions, the default object and all objects of it, which
 * stay what they are. The class has none of these afterwards, and its super class can be set.
 * @param RetiredSuper what the super class was moved to, or the super class itself; it must be laid out like it was
 */
COREUOBJECT_API UClass* RetireClassLayout(UClass* Class, UClass* RetiredSuper);
/** Whether the class was made by RetireClassLayout. */
COREUOBJECT_API bool IsRetiredClass(const UClass* Class);
/** Copies of another struct's own properties, behind those that are there. */
COREUOBJECT_API void CopyOwnProperties(const UStruct* Source, UStruct* Target);

/**
 * Puts other objects in the place of some wherever objects refer to them, weakly, too, and in what is garbage.
 * @param Within the packages of which alone the objects are looked at, when no others can refer to them; all objects when empty
 */
COREUOBJECT_API void ReplaceAllReferences(const TMap<UObject*, UObject*>& Replacements, const TArray<UPackage*>& Within = {});
/** The same in all objects but some. */
COREUOBJECT_API void ReplaceAllReferencesBut(const TSet<const UObject*>& Untouched, const TMap<UObject*, UObject*>& Replacements);
