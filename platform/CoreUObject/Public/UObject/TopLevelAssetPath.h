#pragma once

#include "CoreMinimal.h"
#include "Serialization/Archive.h"

class FOutputDevice;
class UObject;

/** The path of an object that lies directly in a package: "/Script/Engine.Actor", "/Game/Folder/Asset.Asset". */
struct COREUOBJECT_API FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(FName InPackageName, FName InAssetName)
		: PackageName(InPackageName)
		, AssetName(InAssetName)
	{
	}
	explicit FTopLevelAssetPath(const FString& Path) { TrySetPath(Path); }
	explicit FTopLevelAssetPath(const TCHAR* Path) { TrySetPath(Path); }
	/** Null for an object that does not lie directly in a package. */
	explicit FTopLevelAssetPath(const UObject* Object);

	/** Also takes a package's name alone. @return false, and the path becomes null, for a text that is no such path */
	bool TrySetPath(const FString& Path);
	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }
	/** Empty for the null path. */
	FString ToString() const;
	bool IsNull() const { return PackageName.IsNone(); }
	bool IsValid() const { return !IsNull(); }
	void Reset() { *this = FTopLevelAssetPath(); }

	// As a property's value: the path, or None.
	bool ExportTextItem(
		FString& ValueStr, const FTopLevelAssetPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	bool operator==(const FTopLevelAssetPath&) const = default;
	friend uint32 GetTypeHash(const FTopLevelAssetPath& Path)
	{
		return HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName));
	}
	friend FArchive& operator<<(FArchive& Ar, FTopLevelAssetPath& Path) { return Ar << Path.PackageName << Path.AssetName; }

private:
	FName PackageName;
	FName AssetName;
};
