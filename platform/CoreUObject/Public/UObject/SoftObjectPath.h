#pragma once

#include "Serialization/Archive.h"
#include "UObject/Object.h"

class FOutputDevice;

/** Names an object that need not be loaded: "/Game/Folder/Asset.Asset", with ":Part" for an object inside of the asset. */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	FSoftObjectPath(const TCHAR* Path) { SetPath(Path); }
	FSoftObjectPath(const UObject* Object);

	/** Also takes Class'Path'; None and an empty text are no path. */
	void SetPath(const FString& Path);
	/** Empty for no path. */
	FString ToString() const;
	/** "/Game/Folder/Asset" */
	FString GetLongPackageName() const { return PackageName.IsNone() ? FString() : PackageName.ToString(); }
	FName GetLongPackageFName() const { return PackageName; }
	/** "Asset"; empty when the path is a package's. */
	FString GetAssetName() const { return AssetName.IsNone() ? FString() : AssetName.ToString(); }
	FName GetAssetFName() const { return AssetName; }
	/** "/Game/Folder/Asset.Asset" */
	FString GetAssetPathString() const;
	/** Behind the ":". */
	const FString& GetSubPathString() const { return SubPath; }
	bool IsNull() const { return PackageName.IsNone(); }
	bool IsValid() const { return !IsNull(); }
	bool IsAsset() const { return !AssetName.IsNone() && SubPath.IsEmpty(); }
	bool IsSubobject() const { return !SubPath.IsEmpty(); }
	void Reset() { *this = FSoftObjectPath(); }

	/** The object when it is in memory. */
	UObject* ResolveObject() const;
	/** The object, loaded when it is not in memory; null when it can't be. */
	UObject* TryLoad() const;

	bool operator==(const FSoftObjectPath&) const = default;
	friend uint32 GetTypeHash(const FSoftObjectPath& Path)
	{
		return HashCombine(HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName)), GetTypeHash(Path.SubPath));
	}
	friend FArchive& operator<<(FArchive& Ar, FSoftObjectPath& Path) { return Ar << Path.PackageName << Path.AssetName << Path.SubPath; }

	/** The bare path, or None. */
	bool ExportTextItem(
		FString& ValueStr, const FSoftObjectPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	/** Moves Buffer behind what was read. */
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

private:
	FName PackageName;
	FName AssetName;
	FString SubPath;
};

/** Names a class that need not be loaded. */
struct COREUOBJECT_API FSoftClassPath : public FSoftObjectPath
{
	using FSoftObjectPath::FSoftObjectPath;

	/** Null when it is not in memory, or no class. */
	UClass* ResolveClass() const;
	/** Loads the class when it is not in memory; null when it does not derive from T. */
	template <typename T>
	UClass* TryLoadClass() const
	{
		return LoadClassOf(T::StaticClass());
	}

private:
	UClass* LoadClassOf(const UClass* Base) const;
};
