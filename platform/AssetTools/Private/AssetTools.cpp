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
	// File systems tell letters of both cases apart, names of packages do not.
	TArray<FAssetData> Alike;
	if (IAssetRegistry::GetChecked().GetAssetsByPackageName(FName(PackageName), Alike))
	{
		OutReason = FString::Printf(TEXT("there is the asset %s already"), *Alike[0].GetObjectPathString());
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

UObject* MakeAsset(UPackage* Package, FName Name, UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	if (Factory)
	{
		return Factory->FactoryCreateNew(AssetClass, Package, Name, AssetFlags, nullptr, GWarn, CallingContext);
	}
	return AssetClass ? NewObject<UObject>(Package, AssetClass, Name, AssetFlags) : nullptr;
}

class FAssetTools final : public IAssetTools
{
public:
	UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext) override
	{
		const FString PackageName = JoinPackageName(PackagePath, AssetName);
		FString Reason;
		UPackage* const Package = MakePackage(PackageName, AssetName, Reason);
		if (!Package)
		{
			return Refuse(PackageName, Reason);
		}
		UObject* const Asset = MakeAsset(Package, FName(AssetName), AssetClass, Factory, CallingContext);
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
