#pragma once

#include "UObject/Class.h"

/** What an object's path begins with: "/Script/<Module>" for the reflected types of a module. */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_INTRINSIC_CLASS(UPackage, UObject)
};

/** The package of that name, which is made when it is not there. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
/** The package of objects that are made without a place of their own. */
COREUOBJECT_API UPackage* GetTransientPackage();
