#pragma once

#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

/** The value of a tag, or that there is none. */
class FAssetTagValueRef
{
public:
	FAssetTagValueRef() = default;
	explicit FAssetTagValueRef(const FString& InValue)
		: Value(InValue)
		, bSet(true)
	{
	}

	bool IsSet() const { return bSet; }
	/** Empty when there is none. */
	const FString& AsString() const { return Value; }
	FName AsName() const { return FName(Value); }

private:
	FString Value;
	bool bSet = false;
};

/** Tags and their values; copies share them. */
class COREUOBJECT_API FAssetDataTagMapSharedView
{
public:
	FAssetDataTagMapSharedView() = default;
	explicit FAssetDataTagMapSharedView(TMap<FName, FString> InTags);

	FAssetTagValueRef FindTag(FName Tag) const;
	bool Contains(FName Tag) const { return Tags && Tags->Contains(Tag); }
	int32 Num() const { return Tags ? Tags->Num() : 0; }
	/** Calls Callback with each tag's name and value, in order. */
	void ForEach(TFunctionRef<void(const TPair<FName, FString>&)> Callback) const;

private:
	TSharedPtr<const TMap<FName, FString>> Tags;
};

enum class EResolveClass : uint8
{
	/** Only a class in memory. */
	No,
	/** Loads the class when it is not in memory. */
	Yes
};

/** What is known of an asset that need not be loaded. */
struct COREUOBJECT_API FAssetData
{
	FAssetData() = default;
	FAssetData(FName InPackageName, FName InAssetName, const FTopLevelAssetPath& InAssetClassPath, TMap<FName, FString> InTags = {});
	/** Of an asset in memory, with the tags that it has now. */
	explicit FAssetData(const UObject* InAsset);

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }
	/** "/Game/Folder/Asset.Asset" */
	FString GetObjectPathString() const;
	FSoftObjectPath GetSoftObjectPath() const { return FSoftObjectPath(GetObjectPathString()); }
	/** "Class /Game/Folder/Asset.Asset", with the class's whole path. */
	FString GetFullName() const;
	/** "Class'/Game/Folder/Asset.Asset'", with the class's whole path. */
	FString GetExportTextName() const;
	/** The asset's own class, or null. */
	UClass* GetClass(EResolveClass ResolveClass = EResolveClass::No) const;
	/** Whether the asset's class is Base or derives from it; it must be in memory. */
	bool IsInstanceOf(const UClass* Base) const;
	/** The asset, which is loaded when it is not in memory; null when it can't be. */
	UObject* GetAsset(const TSet<FName>& LoadTags = {}) const;
	bool IsAssetLoaded() const;
	/** @return false, with OutValue as it was, when there is no such tag */
	bool GetTagValue(FName Tag, FString& OutValue) const;

	/** By object path. */
	bool operator==(const FAssetData& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }

	/** "/Game/Folder/Asset" */
	FName PackageName;
	/** "/Game/Folder" */
	FName PackagePath;
	/** "Asset" */
	FName AssetName;
	FTopLevelAssetPath AssetClassPath;
	FAssetDataTagMapSharedView TagsAndValues;
};
