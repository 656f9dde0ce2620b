#pragma once

#include "LinkerLoad.h"

DECLARE_LOG_CATEGORY_EXTERN(LogLinker, Log, All);

/** All packages that one call loads: the one asked for and those that it refers to. */
class FPackageLoader
{
public:
	explicit FPackageLoader(uint32 InLoadFlags);
	~FPackageLoader();
	UE_NONCOPYABLE(FPackageLoader)

	/** The one that is at work, or null. */
	static FPackageLoader* Get();

	/** Begins to load a package that is not in memory. @return null when there is no file, or none that can be used */
	FLinkerLoad* Open(const FString& PackageName, const FString& Filename);
	FLinkerLoad* Open(const FString& PackageName, const FString& Filename, TArray<uint8> Bytes);
	/** The package's, when it is being loaded. */
	FLinkerLoad* Find(const UPackage* Package) const;
	/**
	 * Finds an object in memory, or makes it; its package is read later.
	 * @param bOutInMaking there will be such an object, but what is asked for is needed to make it
	 */
	UObject* FindOrMake(const FString& Path, bool& bOutInMaking);
	/** Whether there is anything in the package. */
	static bool IsLoaded(const UPackage* Package);
	/** Loads all, discards what failed, and tells the objects. */
	void Finish();

	bool IsQuiet() const;

	/** How deep packages, types and archetypes are loaded in each other now. */
	int32 Depth = 0;

private:
	/** Also discards packages whose types need what has failed. */
	void DiscardFailed();
	void Discard(const FLinkerLoad& Linker);

	uint32 LoadFlags;
	TArray<TUniquePtr<FLinkerLoad>> Linkers;
	TMap<const UPackage*, FLinkerLoad*> ByPackage;
};
