#pragma once

#include "Serialization/Archive.h"
#include "UObject/Object.h"
#include "UObject/TopLevelAssetPath.h"

class FOutputDevice;

/** Names an object that need not be loaded: "/Game/Folder/Asset.Asset", with ":Part" for an object inside of the asset. */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	FSoftObjectPath(const TCHAR* Path) { SetPath(Path); }
	FSoftObjectPath(const UObject* Object);
	FSoftObjectPath(const FTopLevelAssetPath& InAssetPath, const FString& InSubPath = FString())
		: AssetPath(InAssetPath)
		, SubPath(InSubPath)
	{
	}

	/** Also takes Class'Path'; None and an empty text are no path. */
	void SetPath(const FString& Path);
	/** Empty for no path. */
	FString ToString() const;
	/** Of the asset itself, also for an object inside of it. */
	const FTopLevelAssetPath& GetAssetPath() const { return AssetPath; }
	/** "/Game/Folder/Asset.Asset" */
	FString GetAssetPathString() const { return AssetPath.ToString(); }
	/** "/Game/Folder/Asset" */
	FString GetLongPackageName() const { return IsNull() ? FString() : GetLongPackageFName().ToString(); }
	FName GetLongPackageFName() const { return AssetPath.GetPackageName(); }
	/** "Asset"; empty when the path is a package's. */
	FString GetAssetName() const { return GetAssetFName().IsNone() ? FString() : GetAssetFName().ToString(); }
	FName GetAssetFName() const { return AssetPath.GetAssetName(); }
	/** Behind the ":". */
	const FString& GetSubPathString() const { return SubPath; }
	bool IsNull() const { return AssetPath.IsNull(); }
	bool IsValid() const { return !IsNull(); }
	bool IsAsset() const { return !GetAssetFName().IsNone() && SubPath.IsEmpty(); }
	bool IsSubobject() const { return !SubPath.IsEmpty(); }
	void Reset() { *this = FSoftObjectPath(); }

	/** The object when it is in memory. */
	UObject* ResolveObject() const;
	/** The object, loaded when it is not in memory; null when it can't be. */
	UObject* TryLoad() const;

	bool operator==(const FSoftObjectPath&) const = default;
	friend uint32 GetTypeHash(const FSoftObjectPath& Path) { return HashCombine(GetTypeHash(Path.AssetPath), GetTypeHash(Path.SubPath)); }
	friend FArchive& operator<<(FArchive& Ar, FSoftObjectPath& Path) { return Ar << Path.AssetPath << Path.SubPath; }

	/** The bare path, or None. */
	bool ExportTextItem(
		FString& ValueStr, const FSoftObjectPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	/** Moves Buffer behind what was read. */
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

private:
	FTopLevelAssetPath AssetPath;
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
