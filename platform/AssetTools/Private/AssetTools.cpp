#include "AssetNames.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsImpl.h"
#include "AssetToolsModule.h"
#include "Factories/Factory.h"
#include "Misc/FeedbackContext.h"
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

UObject* MakeAsset(UPackage* Package, FName Name, UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	if (Factory)
	{
		return Factory->FactoryCreateNew(AssetClass, Package, Name, AssetFlags, nullptr, GWarn, CallingContext);
	}
	return AssetClass ? NewObject<UObject>(Package, AssetClass, Name, AssetFlags) : nullptr;
}
}

UObject* UAssetToolsImpl::CreateAsset(
	const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext)
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

IAssetTools& IAssetTools::Get()
{
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	return *GetMutableDefault<UAssetToolsImpl>();
}

TScriptInterface<IAssetTools> UAssetToolsHelpers::GetAssetTools()
{
	return TScriptInterface<IAssetTools>(GetMutableDefault<UAssetToolsImpl>());
}

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)
