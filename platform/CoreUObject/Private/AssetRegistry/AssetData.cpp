#include "AssetRegistry/AssetData.h"

#include "Misc/PackageName.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/UObjectGlobals.h"

FAssetDataTagMapSharedView::FAssetDataTagMapSharedView(TMap<FName, FString> InTags)
	: Tags(MakeShared<TMap<FName, FString>>(MoveTemp(InTags)))
{
}

FAssetTagValueRef FAssetDataTagMapSharedView::FindTag(FName Tag) const
{
	const FString* const Value = Tags ? Tags->Find(Tag) : nullptr;
	return Value ? FAssetTagValueRef(*Value) : FAssetTagValueRef();
}

void FAssetDataTagMapSharedView::ForEach(TFunctionRef<void(const TPair<FName, FString>&)> Callback) const
{
	if (Tags)
	{
		for (const TPair<FName, FString>& Tag : *Tags)
		{
			Callback(Tag);
		}
	}
}

FAssetData::FAssetData(FName InPackageName, FName InAssetName, const FTopLevelAssetPath& InAssetClassPath, TMap<FName, FString> InTags)
	: PackageName(InPackageName)
	, PackagePath(FPackageName::GetLongPackagePath(InPackageName.ToString()))
	, AssetName(InAssetName)
	, AssetClassPath(InAssetClassPath)
	, TagsAndValues(MoveTemp(InTags))
{
}

FAssetData::FAssetData(const UObject* InAsset)
{
	if (InAsset && InAsset->GetPackage())
	{
		TArray<UObject::FAssetRegistryTag> Tags;
		InAsset->GetAssetRegistryTags(FAssetRegistryTagsContext(InAsset, Tags));
		TMap<FName, FString> Values;
		for (const UObject::FAssetRegistryTag& Tag : Tags)
		{
			Values.Add(Tag.Name, Tag.Value);
		}
		*this =
			FAssetData(InAsset->GetPackage()->GetFName(), InAsset->GetFName(), FTopLevelAssetPath(InAsset->GetClass()), MoveTemp(Values));
	}
}

FString FAssetData::GetObjectPathString() const
{
	return IsValid() ? PackageName.ToString() + TEXT(".") + AssetName.ToString() : FString();
}

FString FAssetData::GetFullName() const
{
	return AssetClassPath.ToString() + TEXT(" ") + GetObjectPathString();
}

FString FAssetData::GetExportTextName() const
{
	return AssetClassPath.ToString() + TEXT("'") + GetObjectPathString() + TEXT("'");
}

UClass* FAssetData::GetClass(EResolveClass ResolveClass) const
{
	if (AssetClassPath.IsNull())
	{
		return nullptr;
	}
	UClass* const Found = FindObject<UClass>(nullptr, *AssetClassPath.ToString());
	return Found || ResolveClass == EResolveClass::No ? Found : LoadObject<UClass>(nullptr, *AssetClassPath.ToString());
}

bool FAssetData::IsInstanceOf(const UClass* Base) const
{
	const UClass* const Class = GetClass();
	return Class && Class->IsChildOf(Base);
}

UObject* FAssetData::GetAsset(const TSet<FName>&) const
{
	return IsValid() ? LoadObject<UObject>(nullptr, *GetObjectPathString()) : nullptr;
}

bool FAssetData::IsAssetLoaded() const
{
	return IsValid() && FindObject<UObject>(nullptr, *GetObjectPathString());
}

bool FAssetData::GetTagValue(FName Tag, FString& OutValue) const
{
	const FAssetTagValueRef Value = TagsAndValues.FindTag(Tag);
	OutValue = Value.IsSet() ? Value.AsString() : OutValue;
	return Value.IsSet();
}
