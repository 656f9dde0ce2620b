#pragma once

#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

/** Which assets are asked for: an asset fits when it fits one element of each list that is not empty. */
struct FARFilter
{
	TArray<FName> PackageNames;
	/** Folders, as in "/Game/Doors". */
	TArray<FName> PackagePaths;
	TArray<FSoftObjectPath> SoftObjectPaths;
	TArray<FTopLevelAssetPath> ClassPaths;
	bool bRecursivePaths = false;
	/** Classes that derive from ClassPaths fit, too; they must be in memory. */
	bool bRecursiveClasses = false;
	/** As the files say, whatever is in memory. */
	bool bIncludeOnlyOnDiskAssets = false;

	bool IsEmpty() const { return PackageNames.IsEmpty() && PackagePaths.IsEmpty() && SoftObjectPaths.IsEmpty() && ClassPaths.IsEmpty(); }
};
