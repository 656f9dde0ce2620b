#include "AssetRegistry.h"
#include "Misc/PackageName.h"
#include "UObject/PackageReader.h"

bool FAssetRegistry::GetReferencers(FName PackageName, TArray<FName>& OutReferencers) const
{
	Update();
	TSet<FName> Seen = { PackageName };
	const int32 Before = OutReferencers.Num();
	for (const FListedAsset& Asset : Files.GetAssets())
	{
		FString Filename;
		const FName Name = Asset.Data.PackageName;
		if (!Seen.Contains(Name) && FPackageName::DoesPackageExist(Name.ToString(), &Filename) &&
			FPackageReader::MayReferTo(Filename, PackageName))
		{
			OutReferencers.Add(Name);
		}
		Seen.Add(Name);
	}
	return OutReferencers.Num() > Before;
}
