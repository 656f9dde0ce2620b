#pragma once

#include "AssetRegistry/AssetData.h"

class IFileHandle;

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
	/** @param File just opened, or null when it could not be. @param FileSize in bytes */
	[[nodiscard]] static bool ReadAssets(
		IFileHandle* File, int64 FileSize, FName PackageName, TArray<FAssetData>& OutAssets, FString& OutError);
	/** Whether objects in the file refer to something in a package, or name it softly; a name that is alike but for its number will do. */
	static bool MayReferTo(const FString& Filename, FName PackageName);
};
