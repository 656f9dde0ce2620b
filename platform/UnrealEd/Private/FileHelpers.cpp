#include "FileHelpers.h"

#include "Engine/World.h"
#include "Misc/PackageName.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Those that can have a file, in the order in which they were made. */
void GetDirtyPackages(TArray<UPackage*>& OutPackages, bool bWorlds, const FShouldIgnorePackageFunctionRef& ShouldIgnorePackage)
{
	TArray<UObject*> Packages;
	GetObjectsOfClass(UPackage::StaticClass(), Packages);
	for (UObject* const Object : Packages)
	{
		UPackage* const Package = static_cast<UPackage*>(Object);
		const bool bDirty = Package->IsDirty() && Package->CanBeSaved() && FPackageName::IsValidLongPackageName(Package->GetName());
		if (bDirty && (UWorld::FindWorldInPackage(Package) != nullptr) == bWorlds && !ShouldIgnorePackage(Package))
		{
			OutPackages.Add(Package);
		}
	}
}
}

void FEditorFileUtils::GetDirtyWorldPackages(
	TArray<UPackage*>& OutDirtyPackages, const FShouldIgnorePackageFunctionRef& ShouldIgnorePackage)
{
	GetDirtyPackages(OutDirtyPackages, true, ShouldIgnorePackage);
}

void FEditorFileUtils::GetDirtyContentPackages(
	TArray<UPackage*>& OutDirtyPackages, const FShouldIgnorePackageFunctionRef& ShouldIgnorePackage)
{
	GetDirtyPackages(OutDirtyPackages, false, ShouldIgnorePackage);
}
