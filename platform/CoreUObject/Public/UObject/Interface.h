#pragma once

#include "UObject/Class.h"

/** The base of the classes that stand for interfaces; there are no objects of them but the class default objects. */
class COREUOBJECT_API UInterface : public UObject
{
public:
	using Super = UObject;
	using ThisClass = UInterface;
	static UClass* StaticClass();
};
