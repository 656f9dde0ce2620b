#pragma once

#include "AssetRegistry/AssetData.h"

/** Reads what the file of a package says of its assets, and nothing of the assets. */
class COREUOBJECT_API FPackageReader
{
public:
	/**
	 * Appends the file's assets. Any thread.
	 * @param PackageName the name that follows from the file's place
	 * @return false, with the reason in OutError, when it is not a sound file of a package
	 */
	[[nodiscard]] static bool ReadAssets(const FString& Filename, FName PackageName, TArray<FAssetData>& OutAssets, FString& OutError);
};
