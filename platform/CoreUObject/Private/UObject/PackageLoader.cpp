#include "PackageLoader.h"

#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "ReferenceArchive.h"
#include "UObject/CompileOnLoad.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>

DEFINE_LOG_CATEGORY(LogLinker);

namespace
{
FPackageLoader* AtWork = nullptr;

/** Finds or clears references to objects that could not be loaded. */
class FLostReferences final : public FReferenceArchive
{
public:
	FLostReferences(const TSet<const UObject*>& InLost, bool bInClear)
		: Lost(InLost)
		, bClear(bInClear)
	{
	}

	using FReferenceArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		if (Object && Lost.Contains(Object))
		{
			bFound = true;
			Object = bClear ? nullptr : Object;
		}
		return *this;
	}

	bool bFound = false;

private:
	const TSet<const UObject*>& Lost;
	const bool bClear;
};

/** All that lies in a package that failed, whoever made it. */
void AddLost(const FLinkerLoad& Linker, TSet<const UObject*>& Lost)
{
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Linker.GetPackage(), Objects);
	for (const UObject* const Object : Objects)
	{
		Lost.Add(Object);
	}
}

bool NeedsLost(const FLinkerLoad& Linker, const TSet<const UObject*>& Lost)
{
	return Linker.GetObjects().ContainsByPredicate(
		[&Lost](UObject* Object)
		{
		FLostReferences Finder(Lost, false);
		if (Object && Object->IsA(UField::StaticClass()))
		{
			Object->Serialize(Finder);
		}
		return Object && (Finder.bFound || Lost.Contains(Object->GetClass()));
	});
}
}

TMulticastDelegate<const TArray<UPackage*>&>& GetCompileOnLoadEvent()
{
	static TMulticastDelegate<const TArray<UPackage*>&> Event;
	return Event;
}

FPackageLoader::FPackageLoader(uint32 InLoadFlags)
	: LoadFlags(InLoadFlags)
{
	check(!AtWork && IsInGameThread());
	AtWork = this;
}

FPackageLoader::~FPackageLoader()
{
	check(AtWork != this);
}

FPackageLoader* FPackageLoader::Get()
{
	return AtWork;
}

bool FPackageLoader::IsQuiet() const
{
	return (LoadFlags & (LOAD_NoWarn | LOAD_Quiet)) != 0;
}

FLinkerLoad* FPackageLoader::Open(const FString& PackageName, const FString& Filename)
{
	TArray<uint8> Bytes;
	if (!FFileHelper::LoadFileToArray(Bytes, *Filename))
	{
		if (!IsQuiet())
		{
			UE_LOG(LogLinker, Warning, TEXT("%s: the package is refused: it can't be read"), *Filename);
		}
		return nullptr;
	}
	return Open(PackageName, Filename, MoveTemp(Bytes));
}

FLinkerLoad* FPackageLoader::Open(const FString& PackageName, const FString& Filename, TArray<uint8> Bytes)
{
	const bool bNew = !FindPackage(nullptr, *PackageName);
	UPackage* const Package = CreatePackage(*PackageName);
	FLinkerLoad* const Linker = Linkers.Add_GetRef(MakeUnique<FLinkerLoad>(*this, Package, Filename, bNew)).Get();
	ByPackage.Add(Package, Linker);
	return Linker->Open(MoveTemp(Bytes)) ? Linker : nullptr;
}

FLinkerLoad* FPackageLoader::Find(const UPackage* Package) const
{
	return ByPackage.FindRef(Package);
}

UObject* FPackageLoader::FindOrMake(const FString& Path, bool& bOutInMaking)
{
	bOutInMaking = false;
	if (UObject* const Object = StaticFindObject(nullptr, nullptr, *Path))
	{
		return Object;
	}
	const FString PackageName = FPackageName::ObjectPathToPackageName(Path);
	const UPackage* const Package = FindPackage(nullptr, *PackageName);
	FLinkerLoad* Linker = Package ? Find(Package) : nullptr;
	FString Filename;
	if (!Linker && !IsLoaded(Package) && FPackageName::DoesPackageExist(PackageName, &Filename))
	{
		Linker = Open(PackageName, Filename);
	}
	return Linker ? Linker->FindExport(Path, bOutInMaking) : nullptr;
}

bool FPackageLoader::IsLoaded(const UPackage* Package)
{
	TArray<UObject*> Objects;
	if (Package)
	{
		GetObjectsWithOuter(Package, Objects, false);
	}
	return !Objects.IsEmpty();
}

void FPackageLoader::Finish()
{
	// Loading one package may open further ones.
	for (int32 Index = 0; Index < Linkers.Num(); ++Index)
	{
		Linkers[Index]->LoadAll();
	}
	DiscardFailed();
	AtWork = nullptr;

	TArray<UObject*> Objects;
	for (const TUniquePtr<FLinkerLoad>& Linker : Linkers)
	{
		Objects.Append(Linker->HasFailed() ? TArray<UObject*>() : Linker->GetObjects());
	}
	Objects.RemoveAll([](const UObject* Object) { return !Object; });
	// Types before what is made of them.
	std::stable_partition(Objects.begin(), Objects.end(), [](const UObject* Object) { return Object->IsA(UField::StaticClass()); });
	for (UObject* const Object : Objects)
	{
		Object->ConditionalPostLoad();
	}
	TArray<UPackage*> Packages;
	for (const TUniquePtr<FLinkerLoad>& Linker : Linkers)
	{
		if (!Linker->HasFailed())
		{
			Packages.Add(Linker->GetPackage());
		}
	}
	if ((LoadFlags & LOAD_DisableCompileOnLoad) == 0)
	{
		GetCompileOnLoadEvent().Broadcast(Packages);
	}
	for (UPackage* const Package : Packages)
	{
		Package->SetDirtyFlag(false);
	}
}

void FPackageLoader::DiscardFailed()
{
	TSet<const UObject*> Lost;
	for (int32 Failed = -1; Failed != Lost.Num();)
	{
		Failed = Lost.Num();
		for (const TUniquePtr<FLinkerLoad>& Linker : Linkers)
		{
			if (!Linker->HasFailed() && !Lost.IsEmpty() && NeedsLost(*Linker, Lost))
			{
				Linker->Fail(TEXT("it has types or objects of types that could not be loaded"));
			}
			if (Linker->HasFailed())
			{
				AddLost(*Linker, Lost);
			}
		}
	}
	FLostReferences Clearer(Lost, true);
	for (const TUniquePtr<FLinkerLoad>& Linker : Linkers)
	{
		for (UObject* const Object : Linker->HasFailed() || Lost.IsEmpty() ? TArray<UObject*>() : Linker->GetObjects())
		{
			if (Object)
			{
				Object->Serialize(Clearer);
			}
		}
	}
	for (const TUniquePtr<FLinkerLoad>& Linker : Linkers)
	{
		if (Linker->HasFailed())
		{
			Discard(*Linker);
		}
	}
}

void FPackageLoader::Discard(const FLinkerLoad& Linker)
{
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Linker.GetPackage(), Objects);
	if (Linker.IsNewPackage())
	{
		Objects.Add(Linker.GetPackage());
	}
	for (UObject* const Object : Objects)
	{
		Object->ClearFlags(RF_Standalone | RF_NeedLoad | RF_NeedPostLoad);
		Object->MarkAsGarbage();
	}
}
