#pragma once

#include "UObject/Class.h"

struct FSavePackageArgs;
struct FSavePackageResultStruct;

/** What an object's path begins with: "/Game/..." for what is kept in a file, "/Script/<Module>" for the reflected types of a module. */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_INTRINSIC_CLASS(UPackage, UObject)

	/** Whether something has changed since the package was loaded or saved. */
	bool IsDirty() const { return bDirty; }
	void SetDirtyFlag(bool bIsDirty) { bDirty = bIsDirty; }
	void ClearDirtyFlag() { bDirty = false; }
	/** Neither that of a module's types nor one for transient objects. */
	bool CanBeSaved() const { return !HasAnyFlags(RF_MarkAsNative | RF_Transient); }

	/**
	 * Writes the asset and what has one of Args.TopLevelFlags, with all in the package that they refer to; transient objects stay out.
	 * The old file stays as it is unless all of the new one is written. The package is not dirty afterwards. A failure is logged.
	 * @param Asset null for the objects with the flags alone
	 */
	static FSavePackageResultStruct Save(UPackage* Package, UObject* Asset, const TCHAR* Filename, const FSavePackageArgs& Args);
	/** @return whether it was saved */
	static bool SavePackage(UPackage* Package, UObject* Asset, const TCHAR* Filename, const FSavePackageArgs& Args);

private:
	bool bDirty = false;
};

/** The package of that name, which is made when it is not there. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
/** The package of that name in memory, or null. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
/** The package of objects that are made without a place of their own. */
COREUOBJECT_API UPackage* GetTransientPackage();
