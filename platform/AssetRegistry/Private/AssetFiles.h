#pragma once

#include "AssetRegistry/AssetData.h"
#include "FolderWatch.h"
#include "Misc/DateTime.h"

/** An asset with its object path, by which lists are sorted. */
struct FListedAsset
{
	FString Path;
	FAssetData Data;
};

/** What the files of the content folders hold. */
class FAssetFiles
{
public:
	/** What a look at the folders has found. */
	struct FChanges
	{
		TArray<FAssetData> Added;
		TArray<FAssetData> Removed;
		TArray<FAssetData> Updated;
	};

	/** Reads the files that are new or changed since the last look, and forgets those that are gone. */
	FChanges Update(bool bForceRescan = false);
	/** In the order of their paths; of two files with the same one, the one in the folder that comes first by name. */
	const TArray<FListedAsset>& GetAssets() const { return Assets; }

private:
	/** A file as it was when it was read; one that could not be read has no assets. */
	struct FFile
	{
		FString Path;
		FDateTime ModificationTime;
		int64 Size = -1;
		/** Whether a later change would show. */
		bool bSettled = false;
		TArray<FAssetData> Assets;
		/** Why it could not be read. */
		FString Error;

		bool IsUnchanged() const;
	};
	class FWalk;

	void ListAssets();

	FString ProjectContent;
	FString EngineContent;
	FFolderWatch Watch;
	/** In the order of the walk: a folder's files by name, then its folders. */
	TArray<FFile> Files;
	TArray<FListedAsset> Assets;
};
