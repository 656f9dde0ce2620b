#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

/**
 * Puts the reflected types of libraries that are loaded anew in the place of those that the same modules had. Objects get new ones in
 * their place, with the values that differed from their old defaults; Blueprints that derive from the classes, or have variables of the
 * structs and enums, are compiled; whatever refers to the types refers to the new ones. The old types stay for what is left of the old
 * libraries' code, as "REINST_<Name>".
 *
 * In this order: construction, loading of the libraries, MakeNewTypes, FindObstacles; then ChangeOver, or GoBack. Game thread, and
 * nothing else happens in between.
 */
class KISMETCOMPILER_API FModuleTypesReload
{
public:
	/** Moves the modules' types out of the way. */
	explicit FModuleTypesReload(const TArray<FName>& Modules);
	~FModuleTypesReload();
	UE_NONCOPYABLE(FModuleTypesReload)

	/** Those that newly loaded libraries have registered. */
	void MakeNewTypes();
	/** What speaks against the new types, in whole sentences: something needs a type that is gone, for instance. */
	TArray<FString> FindObstacles() const;
	void ChangeOver();
	/** All is as it was before; the new types are forgotten. */
	void GoBack();

private:
	struct FImpl;
	TUniquePtr<FImpl> Impl;
};
