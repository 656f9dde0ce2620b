#pragma once

#include "Templates/Casts.h"
#include "UObject/Package.h"

/** How an object that is being made gets its class, name and place; its constructor sees it. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags);
	~FObjectInitializer();
	UE_NONCOPYABLE(FObjectInitializer)

	/** That of the innermost object being made on this thread. */
	static const FObjectInitializer& Get();
	UClass* GetClass() const { return Class; }
	/** Null before the object's base constructor has run. */
	UObject* GetObj() const { return Object; }

private:
	friend class UObject;
	/** What the constructor of UObject does with it: gives the object its identity. */
	void Identify(UObject* InObject) const;

	UClass* Class;
	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
	mutable UObject* Object = nullptr;
	FObjectInitializer* const Previous;
};

/**
 * Makes an object: runs the constructor, copies Template's properties, or else the config properties of the class default object, and
 * calls PostInitProperties. Game thread.
 * @param Name NAME_None for a new name made from the class's; any other must be free in Outer
 */
COREUOBJECT_API UObject* StaticConstructObject(
	const UClass* Class, UObject* Outer, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr);

template <typename T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr)
{
	checkf(Class && Class->IsChildOf(T::StaticClass()), TEXT("NewObject: the class does not derive from the type asked for"));
	return static_cast<T*>(StaticConstructObject(Class, Outer, Name, Flags, Template));
}

template <typename T>
T* NewObject(UObject* Outer = GetTransientPackage())
{
	return NewObject<T>(Outer, T::StaticClass());
}

template <typename T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template);
}

/**
 * An object in memory that is a Class, or null.
 * @param Outer null for a Name that is a whole path ("/Script/Game.Lantern")
 */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* Outer, const TCHAR* Name, bool bExactClass = false);

template <typename T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool bExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, bExactClass));
}

/** Makes the objects of all types that loaded modules have registered, and then the class default objects. Later calls are cheap. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects();

#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)

/**
 * Destroys every object that cannot be reached through properties and outers from a rooted object, a native type or default object,
 * or one that has one of KeepFlags. Game thread, and never while an object is being made.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
