#pragma once

#include "AssetRegistry/AssetData.h"
#include "UObject/ObjectMacros.h"

// A package's file: the prologue; the section for the Asset Registry; the tables of names, imports and exports; the exports' values;
// a check sum of all that. Numbers are little-endian.

/** The file's first bytes, all that is needed to read the next section alone. */
struct FPackagePrologue
{
	static constexpr uint32 RightMagic = 0x474B504B; // "KPKG"
	static constexpr uint32 RightVersion = 1;
	static constexpr int64 Size = 4 * sizeof(uint32);

	uint32 Magic = RightMagic;
	uint32 Version = RightVersion;
	/** In bytes, of the section behind the prologue. */
	uint32 RegistrySize = 0;
	uint32 RegistryCheckSum = 0;

	/** @return empty when the reader can go on, otherwise why it can't */
	FString FindFault() const;
	friend FArchive& operator<<(FArchive& Ar, FPackagePrologue& Prologue)
	{
		return Ar << Prologue.Magic << Prologue.Version << Prologue.RegistrySize << Prologue.RegistryCheckSum;
	}
};

/** What the Asset Registry knows of an asset; its package's name follows from the file's. */
struct FPackageAsset
{
	FName Name;
	FTopLevelAssetPath Class;
	TMap<FName, FString> Tags;

	friend FArchive& operator<<(FArchive& Ar, FPackageAsset& Asset) { return Ar << Asset.Name << Asset.Class << Asset.Tags; }
};

// Tables refer to objects by number: 0 is none, N > 0 the export N - 1, N < 0 the import -N - 1.

/** An object of another package. */
struct FObjectImport
{
	FString Class;
	FString Path;

	friend FArchive& operator<<(FArchive& Ar, FObjectImport& Import) { return Ar << Import.Class << Import.Path; }
};

/** An object of this package. */
struct FObjectExport
{
	int32 Class = 0;
	/** Of a type. */
	int32 Super = 0;
	/** 0 for the default object of a class made by C++. */
	int32 Archetype = 0;
	/** An export before this one; 0 for the package. */
	int32 Outer = 0;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	/** Where its values are, in bytes from the first export's. */
	int64 Offset = 0;
	int64 Size = 0;

	friend FArchive& operator<<(FArchive& Ar, FObjectExport& Export)
	{
		return Ar << Export.Class << Export.Super << Export.Archetype << Export.Outer << Export.Name << Export.Flags << Export.Offset
				  << Export.Size;
	}
};

/** A package as its file holds it. */
struct FPackageFile
{
	/** The file's bytes. Values hold what the exports have written one after the other. */
	TArray<uint8> Pack();
	/**
	 * @param Bytes must outlive this
	 * @return empty, or what is wrong with the file; every number in the tables is one that there is then
	 */
	FString Unpack(const TArray<uint8>& Bytes);

	TArray<FPackageAsset> Assets;
	/** Without numbers. */
	TArray<FString> Names;
	TArray<FObjectImport> Imports;
	TArray<FObjectExport> Exports;

	/** When it is written. */
	TArray<uint8> Values;
	/** When it is read. */
	const uint8* ValueBytes = nullptr;

private:
	FString FindFault(int64 ValuesSize) const;
};

/** Reads the section for the Asset Registry. @return empty, or what is wrong with it */
FString ReadPackageAssets(const FPackagePrologue& Prologue, const uint8* Section, TArray<FPackageAsset>& OutAssets);
uint32 GetCheckSum(const uint8* Bytes, int64 Size);
