#pragma once

#include "Templates/Function.h"
#include "UObject/Package.h"

/** Which packages are to be left out. */
using FShouldIgnorePackageFunctionRef = TFunctionRef<bool(UPackage*)>;

/** The packages that have changed since they were loaded or saved. Game thread. */
class UNREALED_API FEditorFileUtils
{
public:
	/** Appends those that hold a world. @param ShouldIgnorePackage asked for each */
	static void GetDirtyWorldPackages(TArray<UPackage*>& OutDirtyPackages, const FShouldIgnorePackageFunctionRef& ShouldIgnorePackage);
	/** Appends all others. */
	static void GetDirtyContentPackages(TArray<UPackage*>& OutDirtyPackages, const FShouldIgnorePackageFunctionRef& ShouldIgnorePackage);
};
