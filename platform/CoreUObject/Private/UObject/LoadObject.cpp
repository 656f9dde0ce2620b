#include "Misc/PackageName.h"
#include "PackageLoader.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogUObjectGlobals, Log, All);

namespace
{
bool IsQuiet(uint32 LoadFlags)
{
	return (LoadFlags & (LOAD_NoWarn | LOAD_Quiet)) != 0;
}

/** The package when it is in memory or has a sound file; null for one without file, and nothing is logged then. */
UPackage* FindOrLoadPackage(const FString& PackageName, uint32 LoadFlags)
{
	UPackage* const Found = FindPackage(nullptr, *PackageName);
	FPackageLoader* const AtWork = FPackageLoader::Get();
	FString Filename;
	if (FPackageLoader::IsLoaded(Found) || (AtWork && AtWork->Find(Found)) || !FPackageName::DoesPackageExist(PackageName, &Filename))
	{
		return Found;
	}
	if (AtWork)
	{
		// What is loaded already wants this one now; it is told of it with the rest.
		FLinkerLoad* const Linker = AtWork->Open(PackageName, Filename);
		if (Linker)
		{
			Linker->LoadAll();
		}
		return Linker && !Linker->HasFailed() ? Linker->GetPackage() : nullptr;
	}
	FPackageLoader Loader(LoadFlags);
	Loader.Open(PackageName, Filename);
	Loader.Finish();
	return FindPackage(nullptr, *PackageName);
}
}

UPackage* LoadPackage(UPackage*, const TCHAR* LongPackageNameOrFilename, uint32 LoadFlags)
{
	ProcessNewlyLoadedUObjects();
	FString PackageName(LongPackageNameOrFilename);
	FPackageName::TryConvertFilenameToLongPackageName(PackageName, PackageName);
	UPackage* const Package = FindOrLoadPackage(PackageName, LoadFlags);
	if (!Package && !IsQuiet(LoadFlags) && !FPackageName::DoesPackageExist(PackageName))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("there is no package '%s'"), LongPackageNameOrFilename);
	}
	return Package;
}

UObject* StaticLoadObject(
	UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR*, uint32 LoadFlags, UPackageMap*, bool, const FLinkerInstancingContext*)
{
	check(Class && Name);
	FString Path = FPackageName::ExportTextPathToObjectPath(Name);
	if (InOuter)
	{
		Path = InOuter->GetPathName() + (InOuter->IsA(UPackage::StaticClass()) ? TEXT(".") : TEXT(":")) + Path;
	}
	else if (FPackageName::ObjectPathToPackageName(Path) == Path)
	{
		Path += TEXT(".") + FPackageName::GetShortName(Path);
	}
	UObject* Object = StaticFindObject(Class, nullptr, *Path);
	if (!Object && FindOrLoadPackage(FPackageName::ObjectPathToPackageName(Path), LoadFlags))
	{
		Object = StaticFindObject(Class, nullptr, *Path);
	}
	if (!Object && !IsQuiet(LoadFlags))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s'"), *Class->GetName(), *Path);
	}
	return Object;
}

UClass* StaticLoadClass(
	UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox)
{
	UClass* const Class = static_cast<UClass*>(StaticLoadObject(UClass::StaticClass(), InOuter, Name, Filename, LoadFlags, Sandbox));
	if (Class && !Class->IsChildOf(BaseClass))
	{
		if (!IsQuiet(LoadFlags))
		{
			UE_LOG(LogUObjectGlobals, Warning, TEXT("%s is no child class of %s"), *Class->GetPathName(), *BaseClass->GetPathName());
		}
		return nullptr;
	}
	return Class;
}
