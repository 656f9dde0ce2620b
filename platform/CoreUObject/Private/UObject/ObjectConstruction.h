#pragma once

#include "UObject/Object.h"

/**
 * Makes one object with its default subobjects. First the constructors run, all of them, since they may still change a subobject's
 * values; then the values of the archetypes are copied; then PostInitProperties is called.
 */
class FObjectConstruction
{
public:
	/**
	 * Runs the constructor.
	 * @param Archetype null for an object that keeps the values its constructor gives
	 */
	UObject* Construct(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Archetype);
	/** What CreateDefaultSubobject does, in the constructor of an object made after OuterArchetype. */
	UObject* ConstructSubobject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, const UObject* OuterArchetype);
	/** Copies the values and tells the objects. */
	void Finish();

private:
	friend class FSubobjectInstancer;

	struct FPart
	{
		UObject* Object;
		UObject* Archetype;
	};

	void CopyValues(const FPart& Part);
	/** The object that stands to its construction as Source, which lies in an archetype, does to that; null when there is none. */
	UObject* FindCounterpart(UObject* Source, bool bMakeMissing);

	/** Subobjects before what they lie in. */
	TArray<FPart> Parts;
};

/** Runs the class's constructor on new memory, and nothing else: for objects of reflection itself. */
UObject* AllocateObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Archetype = nullptr,
	FObjectConstruction* Construction = nullptr);
/** Makes the object that holds a class's defaults; Made is set before the object is told. */
void ConstructDefaultObject(UClass* Class, UObject*& Made);
