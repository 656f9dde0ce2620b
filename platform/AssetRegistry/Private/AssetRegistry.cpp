#include "AssetRegistry.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>

namespace
{
IAssetRegistry* Current = nullptr;

/** The asset in memory that stands at a path, when it may differ from what is in its file; otherwise null. */
UObject* FindChanged(const FAssetData& Asset)
{
	UPackage* const Package = static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), nullptr, Asset.PackageName));
	UObject* const Object =
		Package && Package->IsDirty() ? StaticFindObjectFast(UObject::StaticClass(), Package, Asset.AssetName) : nullptr;
	return Object && Object->IsAsset() ? Object : nullptr;
}

bool IsOfClass(const FAssetData& Asset, const FTopLevelAssetPath& ClassPath, bool bSearchSubClasses)
{
	if (Asset.AssetClassPath == ClassPath)
	{
		return true;
	}
	const UClass* const Base = bSearchSubClasses ? FindObject<UClass>(nullptr, *ClassPath.ToString()) : nullptr;
	const UClass* const Class = Base ? Asset.GetClass() : nullptr;
	return Class && Class->IsChildOf(Base);
}

bool IsInFolder(const FAssetData& Asset, FName Folder, bool bRecursive)
{
	return Asset.PackagePath == Folder ||
		(bRecursive && (Asset.PackagePath.ToString() + TEXT("/")).StartsWith(Folder.ToString() + TEXT("/")));
}

bool Fits(const FARFilter& Filter, const FAssetData& Asset)
{
	const auto IsAny = [](const auto& List, auto Test) { return List.IsEmpty() || List.ContainsByPredicate(Test); };
	return IsAny(Filter.PackageNames, [&](FName Name) { return Name == Asset.PackageName; }) &&
		IsAny(Filter.PackagePaths, [&](FName Path) { return IsInFolder(Asset, Path, Filter.bRecursivePaths); }) &&
		IsAny(Filter.SoftObjectPaths, [&](const FSoftObjectPath& Path) { return Path == Asset.GetSoftObjectPath(); }) &&
		IsAny(Filter.ClassPaths, [&](const FTopLevelAssetPath& Path) { return IsOfClass(Asset, Path, Filter.bRecursiveClasses); });
}
}

IAssetRegistry* IAssetRegistry::Get()
{
	return Current;
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	checkf(Current, TEXT("the module AssetRegistry is not loaded"));
	return *Current;
}

void FAssetRegistryModule::StartupModule()
{
	Registry = MakeUnique<FAssetRegistry>();
	Current = Registry.Get();
}

void FAssetRegistryModule::ShutdownModule()
{
	Current = nullptr;
	Registry.Reset();
}

void FAssetRegistry::Update(bool bForceRescan) const
{
	FAssetFiles::FChanges Changes = Files.Update(bForceRescan);
	// One with changes that were never saved is all that is left of it.
	Changes.Removed.RemoveAll(
		[this](const FAssetData& Asset)
		{
		UObject* const Object = FindChanged(Asset);
		if (Object)
		{
			Created.AddUnique(TWeakObjectPtr<UObject>(Object));
		}
		return Object != nullptr;
	});
	const auto Tell = [](const TArray<FAssetData>& Assets, const FAssetEvent& Event)
	{
		for (const FAssetData& Asset : Assets)
		{
			Event.Broadcast(Asset);
		}
	};
	Tell(Changes.Removed, RemovedEvent);
	Tell(Changes.Added, AddedEvent);
	Tell(Changes.Updated, UpdatedEvent);
}

bool FAssetRegistry::Gather(TArray<FAssetData>& OutAssetData, bool bOnlyOnDisk, TFunctionRef<bool(const FAssetData&)> Fits) const
{
	Update();
	TArray<FListedAsset> Found;
	for (const FListedAsset& Asset : Files.GetAssets())
	{
		const UObject* const Object = bOnlyOnDisk ? nullptr : FindChanged(Asset.Data);
		const FAssetData InMemory(Object);
		const FAssetData& Data = Object ? InMemory : Asset.Data;
		if (Fits(Data))
		{
			Found.Add({ Asset.Path, Data });
		}
	}
	const int32 NumInFiles = Found.Num();
	Created.RemoveAll([](const TWeakObjectPtr<UObject>& Each) { return !Each.IsValid(); });
	for (const TWeakObjectPtr<UObject>& Each : Created)
	{
		const FAssetData Data(!bOnlyOnDisk && Each->IsAsset() ? Each.Get() : nullptr);
		if (Data.IsValid() && Fits(Data))
		{
			Found.Add({ Data.GetObjectPathString(), Data });
		}
	}
	const auto IsBefore = [](const FListedAsset& A, const FListedAsset& B) { return A.Path < B.Path; };
	std::stable_sort(Found.begin() + NumInFiles, Found.end(), IsBefore);
	std::inplace_merge(Found.begin(), Found.begin() + NumInFiles, Found.end(), IsBefore);
	for (int32 Index = 0; Index < Found.Num(); ++Index)
	{
		// One that was made in memory may have a file by now.
		if (Index == 0 || Found[Index].Path != Found[Index - 1].Path)
		{
			OutAssetData.Add(MoveTemp(Found[Index].Data));
		}
	}
	return !Found.IsEmpty();
}

bool FAssetRegistry::GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const
{
	return Gather(OutAssetData, false, [&](const FAssetData& Asset) { return IsOfClass(Asset, ClassPathName, bSearchSubClasses); });
}

bool FAssetRegistry::GetAssetsByPath(
	FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const
{
	return Gather(
		OutAssetData, bIncludeOnlyOnDiskAssets, [&](const FAssetData& Asset) { return IsInFolder(Asset, PackagePath, bRecursive); });
}

bool FAssetRegistry::GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	return Gather(OutAssetData, bIncludeOnlyOnDiskAssets, [&](const FAssetData& Asset) { return Asset.PackageName == PackageName; });
}

bool FAssetRegistry::GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const
{
	return !Filter.IsEmpty() &&
		Gather(OutAssetData, Filter.bIncludeOnlyOnDiskAssets, [&](const FAssetData& Asset) { return Fits(Filter, Asset); });
}

bool FAssetRegistry::GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	return Gather(OutAssetData, bIncludeOnlyOnDiskAssets, [](const FAssetData&) { return true; });
}

FAssetData FAssetRegistry::GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const
{
	TArray<FAssetData> Assets;
	Gather(Assets, bIncludeOnlyOnDiskAssets, [&](const FAssetData& Asset) { return Asset.GetSoftObjectPath() == ObjectPath; });
	return Assets.IsEmpty() ? FAssetData() : Assets[0];
}

void FAssetRegistry::ScanPathsSynchronous(const TArray<FString>&, bool bForceRescan, bool)
{
	Update(bForceRescan);
}

void FAssetRegistry::SearchAllAssets(bool)
{
	Update();
}

void FAssetRegistry::AssetCreated(UObject* NewAsset)
{
	if (!IsValid(NewAsset) || !NewAsset->IsAsset())
	{
		return;
	}
	const FAssetData Data(NewAsset);
	if (Created.Contains(TWeakObjectPtr<UObject>(NewAsset)))
	{
		UpdatedEvent.Broadcast(Data);
		return;
	}
	Created.Add(NewAsset);
	AddedEvent.Broadcast(Data);
}

void FAssetRegistry::AssetDeleted(UObject* DeletedAsset)
{
	Created.RemoveAll([DeletedAsset](const TWeakObjectPtr<UObject>& Each) { return Each.Get() == DeletedAsset; });
	RemovedEvent.Broadcast(FAssetData(DeletedAsset));
}

void FAssetRegistry::AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
{
	Created.AddUnique(TWeakObjectPtr<UObject>(const_cast<UObject*>(RenamedAsset)));
	RenamedEvent.Broadcast(FAssetData(RenamedAsset), OldObjectPath);
}

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)
