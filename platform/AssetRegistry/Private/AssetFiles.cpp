#include "AssetFiles.h"

#include "HAL/PlatformFileManager.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/PackageReader.h"

#include <algorithm>

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistry, Log, All);

namespace
{
bool IsPackageFile(const FString& Path)
{
	return Path.EndsWith(FPackageName::GetAssetPackageExtension()) || Path.EndsWith(FPackageName::GetMapPackageExtension());
}

/** File systems stamp changes with a clock that ticks every few milliseconds: two changes in one tick look alike. */
bool IsSettled(const FDateTime& ModificationTime)
{
	return FDateTime::UtcNow() - ModificationTime > FTimespan::FromSeconds(0.1);
}
}

/** One look at the folders. */
class FAssetFiles::FWalk
{
public:
	FWalk(TArray<FFile>& InKnown, FFolderWatch& InWatch, bool bInForceRescan)
		: Known(InKnown)
		, Watch(InWatch)
		, bForceRescan(bInForceRescan)
	{
		bSeen.SetNum(Known.Num());
	}

	/** @param Folder that of the packages in the directory, as in "/Game/Doors" */
	void Visit(const FString& Directory, const FString& Folder)
	{
		Watch.Add(Directory);
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
		FFile* const Before = FindKnown(Path);
		if (Before && Before->bSettled && !bForceRescan && Before->IsUnchanged())
		{
			Found.Add(MoveTemp(*Before));
			return;
		}
		const TArray<FAssetData> Old = Before ? MoveTemp(Before->Assets) : TArray<FAssetData>();
		const FFile& File = Found.Add_GetRef(Read(Path, Folder));
		if (!File.Error.IsEmpty() && !(Before && Before->Error == File.Error && Before->IsUnchanged()))
		{
			UE_LOG(LogAssetRegistry, Warning, TEXT("%s holds no assets: %s"), *Path, *File.Error);
		}
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

	static FFile Read(const FString& Path, const FString& Folder)
	{
		IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
		const TUniquePtr<IFileHandle> Handle = Files.OpenRead(*Path);
		const FFileStatData Stat = Handle ? Handle->GetStatData() : Files.GetStatData(*Path);
		FFile File{ Path, Stat.ModificationTime, Stat.FileSize, IsSettled(Stat.ModificationTime), {}, {} };
		const FString PackageName = Folder / FPaths::GetBaseFilename(Path);
		FText Reason;
		if (!FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
		{
			File.Error = Reason.ToString();
		}
		else if (!FPackageReader::ReadAssets(Handle.Get(), Stat.FileSize, FName(PackageName), File.Assets, File.Error))
		{
			File.Assets.Empty();
		}
		return File;
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
	FFolderWatch& Watch;
	TArray<bool> bSeen;
	int32 Next = 0;
	bool bForceRescan;
};

bool FAssetFiles::FFile::IsUnchanged() const
{
	const FFileStatData Stat = FPlatformFileManager::Get().GetPlatformFile().GetStatData(*Path);
	return Stat.ModificationTime == ModificationTime && Stat.FileSize == Size;
}

FAssetFiles::FChanges FAssetFiles::Update(bool bForceRescan)
{
	const FString Roots[] = { FPaths::ProjectContentDir(), FPaths::EngineContentDir() };
	const bool bSameRoots = Roots[0] == ProjectContent && Roots[1] == EngineContent;
	if (bSameRoots && !bForceRescan && !Watch.MayHaveChanged())
	{
		return {};
	}
	ProjectContent = Roots[0];
	EngineContent = Roots[1];
	Watch.Reset();
	FWalk Walk(Files, Watch, bForceRescan);
	Walk.Visit(ProjectContent, TEXT("/Game"));
	Walk.Visit(EngineContent, TEXT("/Engine"));
	Walk.NoteRemoved();
	Files = MoveTemp(Walk.Found);
	ListAssets();
	return MoveTemp(Walk.Changes);
}

void FAssetFiles::ListAssets()
{
	Assets.Empty();
	for (const FFile& File : Files)
	{
		for (const FAssetData& Asset : File.Assets)
		{
			Assets.Add({ Asset.GetObjectPathString(), Asset });
		}
	}
	const auto IsBefore = [](const FListedAsset& A, const FListedAsset& B) { return A.Path < B.Path; };
	// As they come they are in order already, unless the case of letters differs.
	if (!std::is_sorted(Assets.begin(), Assets.end(), IsBefore))
	{
		Assets.StableSort(IsBefore);
	}
}
