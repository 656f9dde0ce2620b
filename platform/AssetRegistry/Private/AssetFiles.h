#pragma once

#include "AssetRegistry/AssetData.h"
#include "Misc/DateTime.h"

/** What the files of the content folders hold. */
class FAssetFiles
{
public:
	/** A file as it was when it was read; one that could not be read has no assets. */
	struct FFile
	{
		FString Path;
		FDateTime ModificationTime;
		int64 Size = -1;
		TArray<FAssetData> Assets;
	};

	/** What a look at the folders has found. */
	struct FChanges
	{
		TArray<FAssetData> Added;
		TArray<FAssetData> Removed;
		TArray<FAssetData> Updated;
	};

	/** Reads the files that are new or changed since the last look, and forgets those that are gone. */
	FChanges Update(bool bForceRescan = false);
	/** In the order of the walk: a folder's files by name, then its folders. */
	const TArray<FFile>& GetFiles() const { return Files; }

private:
	class FWalk;

	TArray<FFile> Files;
};
