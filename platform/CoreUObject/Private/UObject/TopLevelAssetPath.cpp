#include "UObject/TopLevelAssetPath.h"

#include "UObject/Package.h"

FTopLevelAssetPath::FTopLevelAssetPath(const UObject* Object)
{
	const UObject* const Outer = Object ? Object->GetOuter() : nullptr;
	if (Outer && Outer == Object->GetPackage())
	{
		PackageName = Outer->GetFName();
		AssetName = Object->GetFName();
	}
}

bool FTopLevelAssetPath::TrySetPath(const FString& Path)
{
	Reset();
	FString Package = Path;
	FString Asset;
	Path.Split(TEXT("."), &Package, &Asset);
	int32 Found = INDEX_NONE;
	if (!Package.StartsWith(TEXT("/")) || Asset.FindChar('.', Found) || Asset.FindChar(':', Found))
	{
		return false;
	}
	PackageName = FName(Package);
	AssetName = FName(Asset);
	return true;
}

FString FTopLevelAssetPath::ToString() const
{
	if (IsNull())
	{
		return FString();
	}
	return AssetName.IsNone() ? PackageName.ToString() : PackageName.ToString() + TEXT(".") + AssetName.ToString();
}
