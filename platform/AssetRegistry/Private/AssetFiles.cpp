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

TArray<FAssetData> ReadAssets(const FString& Path)
{
	TArray<FAssetData> Assets;
	FString Error;
	if (!FPackageReader::ReadAssets(Path, FName(*FPackageName::FilenameToLongPackageName(Path)), Assets, Error))
	{
		UE_LOG(LogAssetRegistry, Warning, TEXT("%s holds no assets: %s"), *Path, *Error);
		Assets.Empty();
	}
	return Assets;
}
}

FAssetFiles::FChanges FAssetFiles::Update(bool bForceRescan)
{
	FChanges Changes;
	FFiles Found;
	for (const FString& Root : { FPaths::ProjectContentDir(), FPaths::EngineContentDir() })
	{
		Visit(Root, Found, bForceRescan, Changes);
	}
	for (const auto& [Path, Gone] : Files)
	{
		Changes.Removed.Append(Gone.Assets);
	}
	Files = MoveTemp(Found);
	return Changes;
}

void FAssetFiles::Visit(const FString& Directory, FFiles& Found, bool bForceRescan, FChanges& Changes)
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
			VisitFile(File, Found, bForceRescan, Changes);
		}
		return true;
	});
	for (const FString& Each : Directories)
	{
		Visit(Each, Found, bForceRescan, Changes);
	}
}

void FAssetFiles::VisitFile(const FString& Path, FFiles& Found, bool bForceRescan, FChanges& Changes)
{
	const FFileStatData Stat = FPlatformFileManager::Get().GetPlatformFile().GetStatData(*Path);
	auto Known = Files.extract(Path);
	if (Known && !bForceRescan && Known.mapped().ModificationTime == Stat.ModificationTime && Known.mapped().Size == Stat.FileSize)
	{
		Found.insert(MoveTemp(Known));
		return;
	}
	FFile& File = Found[Path];
	File = { Stat.ModificationTime, Stat.FileSize, ReadAssets(Path) };
	for (const FAssetData& Asset : File.Assets)
	{
		const bool bKnown = Known && Known.mapped().Assets.Contains(Asset);
		(bKnown ? Changes.Updated : Changes.Added).Add(Asset);
	}
	for (const FAssetData& Asset : Known ? Known.mapped().Assets : TArray<FAssetData>())
	{
		if (!File.Assets.Contains(Asset))
		{
			Changes.Removed.Add(Asset);
		}
	}
}
