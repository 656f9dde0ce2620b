#include "UObject/TopLevelAssetPath.h"

#include "ObjectText.h"
#include "PropertyText.h"

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

bool FTopLevelAssetPath::ExportTextItem(FString& ValueStr, const FTopLevelAssetPath&, UObject*, int32 PortFlags, UObject*) const
{
	PropertyText::ExportPath(ValueStr, ToString(), PortFlags);
	return true;
}

bool FTopLevelAssetPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject*, FOutputDevice*)
{
	FString Text;
	const TCHAR* const End = PropertyText::ImportString(Buffer, Text, PortFlags);
	const FString Path = End ? ObjectText::GetReferencedPath(Text) : FString();
	FTopLevelAssetPath Read;
	if (!End || (!Path.IsEmpty() && !Read.TrySetPath(Path)))
	{
		return false;
	}
	*this = Read;
	Buffer = End;
	return true;
}
