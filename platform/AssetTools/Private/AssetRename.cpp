#include "AssetNames.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsImpl.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Blueprint.h"
#include "HAL/PlatformFileManager.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "ObjectTools.h"
#include "SoftPaths.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetRename, Log, All);

namespace
{
constexpr ERenameFlags Quietly = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty;

/** The one asset of a package on its way to another package. */
class FAssetMove
{
public:
	FAssetMove(UObject* InAsset, const FString& InNewPackage, const FString& InNewName)
		: Asset(InAsset)
		, OldPackage(InAsset->GetPackage())
		, OldPath(InAsset->GetPathName())
		, OldName(InAsset->GetName())
		, NewPackageName(InNewPackage)
		, NewName(InNewName)
	{
		bHasFile = FPackageName::DoesPackageExist(OldPackage->GetName(), &OldFile);
	}

	/** @return empty, or why nothing has changed */
	FString Perform()
	{
		FString Fault = FindFault();
		Fault = Fault.IsEmpty() ? LoadReferencers() : Fault;
		NewPackage = Fault.IsEmpty() ? MakePackage(NewPackageName, NewName, Fault) : nullptr;
		if (!NewPackage)
		{
			return Fault;
		}
		const FName OldPackageName = OldPackage->GetFName();
		MoveObjects(OldPackage, NewPackage, OldName, NewName);
		RenameClassMembers();
		Changed = ReplaceSoftPaths(OldPackageName, NewPackage->GetFName(), NewNames);
		if (bHasFile && !Save(NewPackage, GetNewFile()))
		{
			MoveObjects(NewPackage, OldPackage, NewName, OldName);
			RenameClassMembers();
			ReplaceSoftPaths(NewPackage->GetFName(), OldPackageName, NewNames);
			return TEXT("its new file could not be written");
		}
		FAssetRegistryModule::AssetRenamed(Asset, OldPath);
		NewPackage->SetDirtyFlag(!bHasFile);
		OldPackage->SetDirtyFlag(false);
		return FString();
	}

	/** The files that refer to the asset, and then the asset's old one. @return whether all of it could be done */
	bool UpdateFiles() const
	{
		TArray<UPackage*> Packages = ObjectTools::FindReferencingPackages(NewPackage);
		for (UPackage* const Each : Changed)
		{
			Packages.AddUnique(Each);
		}
		bool bAll = true;
		for (UPackage* const Each : Packages)
		{
			FString Filename;
			if (Each != NewPackage && FPackageName::DoesPackageExist(Each->GetName(), &Filename))
			{
				bAll &= Save(Each, Filename);
			}
		}
		// As long as a file refers to it, it stays.
		return bAll && (!bHasFile || FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*OldFile));
	}

private:
	FString FindFault() const
	{
		IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
		return bHasFile && Files.IsReadOnly(*OldFile) ? FString::Printf(TEXT("the file %s is read-only"), *OldFile) : FString();
	}

	FString GetNewFile() const { return FPackageName::LongPackageNameToFilename(NewPackageName, FPaths::GetExtension(OldFile, true)); }

	/** Their references follow the object once they are in memory. */
	FString LoadReferencers() const
	{
		TArray<FName> Referencers;
		IAssetRegistry::GetChecked().GetReferencers(OldPackage->GetFName(), Referencers);
		for (const FName& Each : Referencers)
		{
			FString Filename;
			FPackageName::DoesPackageExist(Each.ToString(), &Filename);
			if (FPlatformFileManager::Get().GetPlatformFile().IsReadOnly(*Filename) || !LoadPackage(nullptr, *Each.ToString()))
			{
				return FString::Printf(TEXT("%s refers to it and can't be changed"), *Filename);
			}
		}
		return FString();
	}

	/** The asset, and for a Blueprint its classes with their default objects, which are named after it. */
	void MoveObjects(UPackage* From, UPackage* To, const FString& FromName, const FString& ToName)
	{
		NewNames.Empty();
		TArray<UObject*> Objects;
		GetObjectsWithOuter(From, Objects, false);
		for (UObject* const Object : Objects)
		{
			const FName Before = Object->GetFName();
			Object->Rename(*GetNewName(Object->GetName(), FromName, ToName), To, Quietly);
			NewNames.Add(Before, Object->GetFName());
			if (GEditor)
			{
				GEditor->Trans->NoteNewPlace(Object);
			}
		}
	}

	/** Some of what a Blueprint's compile makes is named after the Blueprint. One that wants a compile of its own gets none here. */
	void RenameClassMembers() const
	{
		UBlueprint* const Blueprint = Cast<UBlueprint>(Asset);
		if (Blueprint && Blueprint->Status != BS_Dirty && Blueprint->Status != BS_Error)
		{
			FKismetEditorUtilities::CompileBlueprint(Blueprint);
		}
	}

	static FString GetNewName(const FString& Name, const FString& FromName, const FString& ToName)
	{
		for (const TCHAR* const Prefix : { TEXT(""), TEXT("SKEL_"), TEXT("Default__"), TEXT("Default__SKEL_") })
		{
			for (const TCHAR* const Suffix : { TEXT(""), TEXT("_C") })
			{
				if (Name.Equals(Prefix + FromName + Suffix))
				{
					return Prefix + ToName + Suffix;
				}
			}
		}
		return Name;
	}

	static bool Save(UPackage* Package, const FString& Filename)
	{
		FSavePackageArgs Args;
		Args.TopLevelFlags = RF_Standalone;
		return UPackage::SavePackage(Package, nullptr, *Filename, Args);
	}

	UObject* const Asset;
	UPackage* const OldPackage;
	const FString OldPath;
	const FString OldName;
	const FString NewPackageName;
	const FString NewName;
	bool bHasFile;
	FString OldFile;
	UPackage* NewPackage = nullptr;
	/** Of what lies directly in the package, by the names that they had before the last move. */
	TMap<FName, FName> NewNames;
	/** Packages in which soft references were replaced. */
	TArray<UPackage*> Changed;
};

bool RenameAsset(const FAssetRenameData& Data)
{
	UObject* const Asset = Data.Asset.Get();
	if (!IsValid(Asset) || !Asset->IsAsset())
	{
		UE_LOG(LogAssetRename, Warning, TEXT("'%s' is no asset that could be renamed"), *GetPathNameSafe(Asset));
		return false;
	}
	const FString OldPath = Asset->GetPathName();
	FAssetMove Move(Asset, JoinPackageName(Data.NewPackagePath, Data.NewName), Data.NewName);
	const FString Fault = Move.Perform();
	if (!Fault.IsEmpty())
	{
		UE_LOG(LogAssetRename, Warning, TEXT("%s is not renamed: %s"), *OldPath, *Fault);
		return false;
	}
	const bool bComplete = Move.UpdateFiles();
	if (!bComplete)
	{
		UE_LOG(LogAssetRename, Warning, TEXT("%s is renamed to %s, but its old file stays"), *OldPath, *Asset->GetPathName());
	}
	return bComplete;
}
}

bool UAssetToolsImpl::RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames)
{
	bool bAll = true;
	for (const FAssetRenameData& Each : AssetsAndNames)
	{
		bAll &= RenameAsset(Each);
	}
	return bAll;
}
