#include "AssetFiles.h"

#include "HAL/PlatformFileManager.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/PackageReader.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistry, Log, All);

namespace
{
bool IsPackageFile(const FString& Path)
{
	return Path.EndsWith(FPackageName::GetAssetPackageExtension()) || Path.EndsWith(FPackageName::GetMapPackageExtension());
}

/** @param Folder that of the package, as in "/Game/Doors" */
TArray<FAssetData> ReadAssets(const FString& Path, const FString& Folder)
{
	const FString PackageName = Folder / FPaths::GetBaseFilename(Path);
	TArray<FAssetData> Assets;
	FString Error;
	FText Reason;
	if (!FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
	{
		Error = Reason.ToString();
	}
	else if (FPackageReader::ReadAssets(Path, FName(PackageName), Assets, Error))
	{
		return Assets;
	}
	UE_LOG(LogAssetRegistry, Warning, TEXT("%s holds no assets: %s"), *Path, *Error);
	return {};
}
}

/** One look at the folders. */
class FAssetFiles::FWalk
{
public:
	FWalk(TArray<FFile>& InKnown, bool bInForceRescan)
		: Known(InKnown)
		, bForceRescan(bInForceRescan)
	{
		bSeen.SetNum(Known.Num());
	}

	/** @param Folder that of the packages in the directory, as in "/Game/Doors" */
	void Visit(const FString& Directory, const FString& Folder)
	{
		TArray<FString> Directories;
		FPlatformFileManager::Get().GetPlatformFile().IterateDirectory(*Directory,
			[&](const TCHAR* Path, bool bIsDirectory)
			{
			if (bIsDirectory)
			{
				Directories.Add(Path);
			}
			else if (const FString File(Path); IsPackageFile(File))
			{
				VisitFile(File, Folder);
			}
			return true;
		});
		for (const FString& Each : Directories)
		{
			Visit(Each, Folder / FPaths::GetCleanFilename(Each));
		}
	}

	/** What was not met any more. */
	void NoteRemoved()
	{
		for (int32 Index = 0; Index < Known.Num(); ++Index)
		{
			if (!bSeen[Index])
			{
				Changes.Removed.Append(Known[Index].Assets);
			}
		}
	}

	TArray<FFile> Found;
	FChanges Changes;

private:
	void VisitFile(const FString& Path, const FString& Folder)
	{
		const FFileStatData Stat = FPlatformFileManager::Get().GetPlatformFile().GetStatData(*Path);
		FFile* const Before = FindKnown(Path);
		if (Before && !bForceRescan && Before->ModificationTime == Stat.ModificationTime && Before->Size == Stat.FileSize)
		{
			Found.Add(MoveTemp(*Before));
			return;
		}
		const TArray<FAssetData> Old = Before ? Before->Assets : TArray<FAssetData>();
		const FFile& File = Found.Add_GetRef({ Path, Stat.ModificationTime, Stat.FileSize, ReadAssets(Path, Folder) });
		for (const FAssetData& Asset : File.Assets)
		{
			(Old.Contains(Asset) ? Changes.Updated : Changes.Added).Add(Asset);
		}
		for (const FAssetData& Asset : Old)
		{
			if (!File.Assets.Contains(Asset))
			{
				Changes.Removed.Add(Asset);
			}
		}
	}

	/** Files mostly come in the order of the last walk, so the search goes on from the last one. */
	FFile* FindKnown(const FString& Path)
	{
		for (int32 Tried = 0; Tried < Known.Num(); ++Tried, ++Next)
		{
			Next = Next < Known.Num() ? Next : 0;
			if (Known[Next].Path.View() == Path.View())
			{
				bSeen[Next] = true;
				return &Known[Next++];
			}
		}
		return nullptr;
	}

	TArray<FFile>& Known;
	TArray<bool> bSeen;
	int32 Next = 0;
	bool bForceRescan;
};

FAssetFiles::FChanges FAssetFiles::Update(bool bForceRescan)
{
	FWalk Walk(Files, bForceRescan);
	Walk.Visit(FPaths::ProjectContentDir(), TEXT("/Game"));
	Walk.Visit(FPaths::EngineContentDir(), TEXT("/Engine"));
	Walk.NoteRemoved();
	Files = MoveTemp(Walk.Found);
	return MoveTemp(Walk.Changes);
}
