#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "Factories/Factory.h"
#include "Misc/FeedbackContext.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetTools, Log, All);

namespace
{
constexpr EObjectFlags AssetFlags = RF_Public | RF_Standalone | RF_Transactional;

UObject* Refuse(const FString& PackageName, const FString& Reason)
{
	UE_LOG(LogAssetTools, Warning, TEXT("The asset %s can't be made: %s"), *PackageName, *Reason);
	return nullptr;
}

/** "/Game//Doors/" and "Door" make "/Game/Doors/Door". */
FString JoinPackageName(const FString& PackagePath, const FString& AssetName)
{
	FString Path = PackagePath;
	while (Path.ReplaceInline(TEXT("//"), TEXT("/")) > 0)
	{
	}
	Path.RemoveFromEnd(TEXT("/"));
	return Path + TEXT("/") + AssetName;
}

/** The package, empty as it must be; null with a reason. */
UPackage* MakePackage(const FString& PackageName, const FString& AssetName, FString& OutReason)
{
	FText Reason;
	if (!FName(AssetName).IsValidObjectName(Reason) || !FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
	{
		OutReason = Reason.ToString();
		return nullptr;
	}
	// A file that is there takes the name, also one that can't be read.
	FString Filename;
	if (FPackageName::DoesPackageExist(PackageName, &Filename))
	{
		OutReason = FString::Printf(TEXT("there is the file %s already"), *Filename);
		return nullptr;
	}
	UPackage* const Package = CreatePackage(*PackageName);
	if (StaticFindObjectFast(UObject::StaticClass(), Package, FName(AssetName)))
	{
		OutReason = TEXT("there is an object of that name already");
		return nullptr;
	}
	return Package;
}

class FAssetTools final : public IAssetTools
{
public:
	UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
		FName CallingContext) override
	{
		return Create(AssetName, PackagePath,
			[=](UPackage* Package) -> UObject*
			{
				if (Factory)
				{
					return Factory->FactoryCreateNew(AssetClass, Package, FName(AssetName), AssetFlags, nullptr, GWarn, CallingContext);
				}
				return AssetClass ? NewObject<UObject>(Package, AssetClass, FName(AssetName), AssetFlags) : nullptr;
			});
	}

	UObject* DuplicateAsset(const FString& AssetName, const FString& PackagePath, UObject* OriginalObject) override
	{
		return Create(AssetName, PackagePath,
			[&](UPackage* Package) -> UObject*
			{
				UObject* const Copy = StaticDuplicateObject(OriginalObject, Package, FName(AssetName));
				Copy->SetFlags(AssetFlags);
				return Copy;
			});
	}

	void CreateUniqueAssetName(
		const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) override
	{
		OutPackageName = InBasePackageName + InSuffix;
		for (int32 Number = 1; FPackageName::DoesPackageExist(OutPackageName) || FindPackage(nullptr, *OutPackageName); ++Number)
		{
			OutPackageName = InBasePackageName + InSuffix + FString::FromInt(Number);
		}
		OutAssetName = FPackageName::GetLongPackageAssetName(OutPackageName);
	}

private:
	static UObject* Create(const FString& AssetName, const FString& PackagePath, TFunctionRef<UObject*(UPackage*)> Make)
	{
		const FString PackageName = JoinPackageName(PackagePath, AssetName);
		FString Reason;
		UPackage* const Package = MakePackage(PackageName, AssetName, Reason);
		if (!Package)
		{
			return Refuse(PackageName, Reason);
		}
		UObject* const Asset = Make(Package);
		if (!Asset)
		{
			Package->MarkAsGarbage();
			return Refuse(PackageName, TEXT("it could not be made"));
		}
		FAssetRegistryModule::AssetCreated(Asset);
		Asset->MarkPackageDirty();
		return Asset;
	}
};
}

IAssetTools& IAssetTools::Get()
{
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	static FAssetTools Tools;
	return Tools;
}

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)
