#pragma once

#include "PackageFile.h"
#include "Serialization/MemoryWriter.h"
#include "UObject/Object.h"

/** Gathers what of a package goes into its file: objects are numbered when they are first referred to, and written in that order. */
class FLinkerSave final : public FMemoryWriter
{
public:
	explicit FLinkerSave(const UPackage* InPackage)
		: FMemoryWriter(File.Values)
		, Package(InPackage)
	{
		bPersistent = true;
	}

	/** The object's number in the tables, and with it the object is saved; 0 for one that files do not hold. */
	int32 GetNumber(UObject* Object);
	/** Writes the values of all objects that have a number, and of those that they refer to. */
	void WriteExports();

	using FMemoryWriter::operator<<;
	FArchive& operator<<(FName& Value) override;
	FArchive& operator<<(UObject*& Value) override;

	FPackageFile File;

private:
	int32 AddExport(UObject* Object);
	int32 AddImport(const UObject* Object);
	void AddAsset(const UObject* Object);

	const UPackage* Package;
	TArray<UObject*> Objects;
	TMap<const UObject*, int32> Numbers;
	/** By the number that the name's text has, spelling and all. */
	TMap<uint32, int32> NameNumbers;
};
