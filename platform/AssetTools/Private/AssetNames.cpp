#include "AssetNames.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

FString JoinPackageName(const FString& PackagePath, const FString& AssetName)
{
	FString Path = PackagePath;
	while (Path.ReplaceInline(TEXT("//"), TEXT("/")) > 0)
	{
	}
	Path.RemoveFromEnd(TEXT("/"));
	return Path + TEXT("/") + AssetName;
}

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
