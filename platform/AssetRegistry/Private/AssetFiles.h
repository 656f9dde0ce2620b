#pragma once

#include "AssetRegistry/AssetData.h"
#include "GenericPlatform/GenericPlatformFile.h"

#include <map>

/** What the files of the content folders hold. */
class FAssetFiles
{
public:
	/** A file as it was when it was read; one that could not be read has no assets. */
	struct FFile
	{
		FDateTime ModificationTime;
		int64 Size = -1;
		TArray<FAssetData> Assets;
	};
	using FFiles = std::map<FString, FFile>;

	/** What a look at the folders has found. */
	struct FChanges
	{
		TArray<FAssetData> Added;
		TArray<FAssetData> Removed;
		TArray<FAssetData> Updated;
	};

	/** Reads the files that are new or changed since the last look, and forgets those that are gone. */
	FChanges Update(bool bForceRescan = false);
	/** By path. */
	const FFiles& GetFiles() const { return Files; }

private:
	void Visit(const FString& Directory, FFiles& Found, bool bForceRescan, FChanges& Changes);
	void VisitFile(const FString& Path, FFiles& Found, bool bForceRescan, FChanges& Changes);

	FFiles Files;
};
