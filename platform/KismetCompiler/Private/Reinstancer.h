#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

/**
 * Replaces the objects of classes that are made anew, in four steps: Retire, which takes the old layouts away; MakeDefaultObject for each
 * class, once it is complete; MakeInstances; ReplaceReferences. In between nothing may be collected.
 *
 * A new object has the old one's name, place and flags, and those values that differed from its archetype's; so it follows the defaults.
 */
class FReinstancer
{
public:
	/** @param InClasses all classes of which the layout changes, each behind its super class */
	explicit FReinstancer(const TArray<UClass*>& InClasses);

	void Retire();
	/** The class that has the old layout now. */
	UClass* GetRetired(UClass* Class) const { return Retired.FindRef(Class); }
	/** With the values that the old one had; nothing happens when there was none. */
	void MakeDefaultObject(UClass* Class);
	void MakeInstances();
	/** @param Within the packages that alone can refer to the objects; empty when all can */
	void ReplaceReferences(const TArray<UPackage*>& Within);

	/**
	 * Instead of Retire and MakeDefaultObject for a class of C++: another class has come for it, with defaults of its own. Null when none
	 * has come, and there are no objects.
	 */
	void Succeed(UClass* Class, UClass* Successor);
	/** The two halves of ReplaceReferences: what replaces what, null for what is gone; and the end of what was replaced. */
	TMap<UObject*, UObject*> GetReplacements() const;
	void DiscardReplaced();

private:
	/** An object as it was before: one of the classes', or one inside such a one. */
	struct FOld
	{
		UObject* Object;
		UObject* Archetype;
		UObject* Outer;
		FName Name;
		/** Null for an object of another class. */
		UClass* ReplacedClass;
		bool bTemplate;
		int32 Depth;
		TArray<uint8> Values;
	};
	class FMappingReader;

	void Capture(UObject* Object, UClass* ReplacedClass);
	/** Makes or finds the new object, or moves the old one. @return whether there is a new one */
	bool MakeReplacement(const FOld& Old);
	UObject* MakeInstance(const FOld& Old, UObject* Outer);
	/** An object that is not replaced itself, in one that is and has not made its like. */
	static void MoveInner(const FOld& Old, UObject* NewOuter);
	void ReadValues(const FOld& Old);
	UObject* FindNew(UObject* Object) const { return Replacements.FindRef(Object); }

	TArray<UClass*> Classes;
	TMap<UClass*, UClass*> Retired;
	TArray<FOld> Olds;
	TSet<const UObject*> Captured;
	TMap<UObject*, UObject*> Replacements;
};
