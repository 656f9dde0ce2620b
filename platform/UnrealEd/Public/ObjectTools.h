#pragma once

#include "UObject/Object.h"

/** What editors do with assets as files. Game thread. */
namespace ObjectTools
{
/**
 * Deletes assets with their packages and files, one after the other; the Asset Registry is told. One that another package refers to, in
 * memory or on disk, stays, as does one whose file can't be deleted; the log says why. Deletion can't be undone.
 * @param bShowConfirmation the engine's; nobody is asked here
 * @return how many were deleted
 */
UNREALED_API int32 DeleteObjects(const TArray<UObject*>& ObjectsToDelete, bool bShowConfirmation = true);

/** The packages in memory that can be saved and have objects that refer to objects of a package; the engine has no such function. */
UNREALED_API TArray<UPackage*> FindReferencingPackages(const UPackage* Package);
}
