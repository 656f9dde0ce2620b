#pragma once

#include "CoreTypes.h"

class UObject;

/** A transaction that is open: what is about to change is recorded in it. */
class ITransaction
{
public:
	virtual ~ITransaction() = default;
	/**
	 * Records the object as it is now, unless it is recorded already: by UObject::Serialize, with an archive that IsTransacting(), its
	 * name and outer, and whether it is garbage. A new object comes as garbage, which is what undo makes of it.
	 */
	virtual void SaveObject(UObject* Object) = 0;
};

/** The open transaction, or null. */
extern COREUOBJECT_API ITransaction* GUndo;
