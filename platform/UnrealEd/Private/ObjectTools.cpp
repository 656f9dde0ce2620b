#include "ObjectTools.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/PackageName.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogObjectTools, Log, All);

namespace
{
/** Finds out whether an object refers to something in a package. */
class FReferenceFinder final : public FArchive
{
public:
	explicit FReferenceFinder(const UPackage* InPackage)
		: Package(InPackage)
	{
		bObjectReferenceCollector = true;
	}

	using FArchive::operator<<;
	FArchive& operator<<(FName&) override { return *this; }
	FArchive& operator<<(UObject*& Object) override
	{
		bFound = bFound || (Object && (Object == Package || Object->IsIn(Package)));
		return *this;
	}

	bool bFound = false;

private:
	const UPackage* Package;
};

/** Empty when nobody refers to the package. */
FString FindReferencer(const UPackage* Package)
{
	const TArray<UPackage*> InMemory = ObjectTools::FindReferencingPackages(Package);
	if (!InMemory.IsEmpty())
	{
		return InMemory[0]->GetName();
	}
	TArray<FName> OnDisk;
	IAssetRegistry::GetChecked().GetReferencers(Package->GetFName(), OnDisk);
	// What has changed in memory has been looked at as it is there.
	OnDisk.RemoveAll(
		[](FName Name)
		{
		const UPackage* const Loaded = FindPackage(nullptr, *Name.ToString());
		return Loaded && Loaded->IsDirty();
	});
	return OnDisk.IsEmpty() ? FString() : OnDisk[0].ToString();
}

bool Refuse(const UObject* Asset, const FString& Reason)
{
	UE_LOG(LogObjectTools, Warning, TEXT("%s is not deleted: %s"), *Asset->GetPathName(), *Reason);
	return false;
}

bool DeleteAsset(UObject* Asset)
{
	UPackage* const Package = Asset->GetPackage();
	const FString Referencer = FindReferencer(Package);
	if (!Referencer.IsEmpty())
	{
		return Refuse(Asset, FString::Printf(TEXT("%s refers to it"), *Referencer));
	}
	FString Filename;
	const bool bHasFile = FPackageName::DoesPackageExist(Package->GetName(), &Filename);
	if (bHasFile && !FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*Filename))
	{
		return Refuse(Asset, FString::Printf(TEXT("the file %s can't be deleted"), *Filename));
	}
	FAssetRegistryModule::AssetDeleted(Asset);
	if (GEditor)
	{
		GEditor->Trans->ForgetObjectsIn(Package);
	}
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects);
	for (UObject* const Object : Objects)
	{
		Object->ClearFlags(RF_Standalone);
		Object->MarkAsGarbage();
	}
	Package->SetDirtyFlag(false);
	return true;
}
}

TArray<UPackage*> ObjectTools::FindReferencingPackages(const UPackage* Package)
{
	TArray<UPackage*> Found;
	for (TObjectIterator<UObject> Object(RF_NoFlags); Object; ++Object)
	{
		UPackage* const Around = Object->GetPackage();
		if (!Around || Around == Package || !Around->CanBeSaved() || Object->IsTemplate(RF_Transient) || Found.Contains(Around))
		{
			continue;
		}
		FReferenceFinder Finder(Package);
		Object->Serialize(Finder);
		const bool bByType = Object->GetClass()->IsIn(Package);
		if (Finder.bFound || bByType)
		{
			Found.Add(Around);
		}
	}
	return Found;
}

int32 ObjectTools::DeleteObjects(const TArray<UObject*>& ObjectsToDelete, bool)
{
	int32 Deleted = 0;
	for (UObject* const Object : ObjectsToDelete)
	{
		Deleted += IsValid(Object) && Object->IsAsset() && DeleteAsset(Object) ? 1 : 0;
	}
	return Deleted;
}
