#include "AssetMaker.h"

#include "Engine/World.h"
#include "UObject/SavePackage.h"
#include "UObject/UnrealType.h"

UPackage* MakePackage(const FString& Path)
{
	return CreatePackage(*(TEXT("/Game/") + Path));
}

void SetProperty(UObject* Object, const TCHAR* Name, const FString& Text)
{
	const FProperty* const Property = Object->GetClass()->FindPropertyByName(Name);
	checkf(Property, TEXT("%s has no property %s"), *Object->GetPathName(), Name);
	verify(Property->ImportText_InContainer(*Text, Object, Object, PPF_None));
}

void SaveAsset(UObject* Asset)
{
	UPackage* const Package = Asset->GetOutermost();
	const FString& Extension = Asset->IsA<UWorld>() ? FPackageName::GetMapPackageExtension() : FPackageName::GetAssetPackageExtension();
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	const FString Filename = FPackageName::LongPackageNameToFilename(Package->GetName(), Extension);
	const bool bSaved = UPackage::Save(Package, Asset, *Filename, Args).IsSuccessful();
	checkf(bSaved, TEXT("%s can't be written"), *Filename);
}
