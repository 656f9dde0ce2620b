#pragma once

#include "PackageFile.h"
#include "Serialization/MemoryReader.h"
#include "UObject/Package.h"

class FPackageLoader;

/**
 * One package that is being loaded. Its objects are made when they are first referred to; a type is complete, and an archetype has its
 * values, before an object is made from it; all other values are read when everything is there, so that packages may refer to each
 * other in circles.
 */
class FLinkerLoad
{
public:
	FLinkerLoad(FPackageLoader& InLoader, UPackage* InPackage, FString InFilename, bool bInNewPackage)
		: Loader(InLoader)
		, Filename(MoveTemp(InFilename))
		, Package(InPackage)
		, bNewPackage(bInNewPackage)
	{
	}
	UE_NONCOPYABLE(FLinkerLoad)

	/** Takes the file's bytes. @return false after Fail */
	bool Open(TArray<uint8> InBytes);
	/** Makes all objects and reads their values. */
	void LoadAll();
	/**
	 * The object of that path, made but perhaps not read yet; null when the package has none.
	 * @param bOutInMaking it is being made
	 */
	UObject* FindExport(const FString& Path, bool& bOutInMaking);

	/** Gives the whole package up, with one line in the log. */
	void Fail(const FString& Reason);
	bool HasFailed() const { return bFailed; }
	UPackage* GetPackage() const { return Package; }
	bool IsNewPackage() const { return bNewPackage; }
	/** The objects that were made, null where one was not. */
	TArray<UObject*> GetObjects() const;

private:
	enum class EStep : uint8
	{
		Untouched,
		/** What it is made from is looked for. */
		Making,
		Made,
		/** Its values are read. */
		Reading,
		Read
	};
	struct FLoadedExport
	{
		UObject* Object = nullptr;
		EStep Step = EStep::Untouched;
		bool bInnerRead = false;
	};
	struct FLoadedImport
	{
		UObject* Object = nullptr;
		bool bTried = false;
		bool bInnerRead = false;
	};
	/** Where an object that is being loaded comes from; without linker for any other. */
	struct FPlace
	{
		FLinkerLoad* Linker;
		int32 Index;
	};
	class FValueReader;

	UObject* Make(int32 Index);
	UObject* MakeObject(const FObjectExport& Export);
	UObject* MakeNamed(const FObjectExport& Export, UClass* Class, UObject* Outer, UObject* Archetype);
	UObject* TakeDefaultObject(const FObjectExport& Export, UClass* Class, const UObject* Outer);
	void Read(int32 Index);
	/** Reads the values of the objects inside an export. */
	void ReadInner(int32 Outermost);
	int32 FindIndex(const UObject* Object) const;
	FPlace FindPlace(int32 Number, const UObject* Object);
	bool PrepareType(UStruct* Type, const FObjectExport& Export);
	void CheckType(UStruct* Type);
	/** The object that a number of the tables stands for. */
	UObject* Resolve(int32 Number);
	void ResolveImport(int32 Index);
	/** The same for what must have its values by now. */
	UObject* ResolveRead(int32 Number);
	/** The same for what an object is to be made after, with all that lies inside it. */
	UObject* ResolveArchetype(int32 Number);
	void Warn(const FString& Text) const;

	FPackageLoader& Loader;
	/** For the log. */
	const FString Filename;
	UPackage* Package;
	const bool bNewPackage;
	bool bFailed = false;
	TArray<uint8> Bytes;
	FPackageFile File;
	TArray<FName> Names;
	TArray<FLoadedExport> Exports;
	TArray<FLoadedImport> Imports;
};
