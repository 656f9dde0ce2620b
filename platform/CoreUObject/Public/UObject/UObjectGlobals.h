#pragma once

#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

class FObjectConstruction;

/** How an object that is being made gets its class, name and place; its constructor sees it. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags, UObject* InArchetype = nullptr,
		FObjectConstruction* InConstruction = nullptr);
	~FObjectInitializer();
	UE_NONCOPYABLE(FObjectInitializer)

	/** That of the innermost object being made on this thread. */
	static const FObjectInitializer& Get();
	UClass* GetClass() const { return Class; }
	/** Null before the object's base constructor has run. */
	UObject* GetObj() const { return Object; }
	/** What the object takes its values over from; null for one that has those of its constructor. */
	UObject* GetArchetype() const { return Archetype; }
	template <typename T>
	T* CreateDefaultSubobject(UObject* InOuter, FName SubobjectName, bool bTransient = false) const
	{
		check(InOuter == Object);
		return InOuter->CreateDefaultSubobject<T>(SubobjectName, bTransient);
	}

private:
	friend class UObject;
	/** What the constructor of UObject does with it: gives the object its identity. */
	void Identify(UObject* InObject) const;

	UClass* Class;
	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
	UObject* Archetype;
	FObjectConstruction* Construction;
	mutable UObject* Object = nullptr;
	FObjectInitializer* const Previous;
};

/**
 * Makes an object: runs the constructor, copies the values of Template, or else of the class default object, turns references to objects
 * inside it into references to the new object's own, and calls PostInitProperties. Game thread. With RF_Transactional an open
 * transaction records that the object is new.
 * @param Name NAME_None for a new name made from the class's; any other must be free in Outer, but for garbage
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

/** A name that no object in Outer has: BaseName with a number, or the class's name with one. */
COREUOBJECT_API FName MakeUniqueObjectName(const UObject* Outer, const UClass* Class, FName BaseName = NAME_None);

/**
 * Copies an object with the objects inside it that it refers to; references among them point to the copies, all others stay. Values of
 * properties marked DuplicateTransient are not copied.
 * @param DestName NAME_None for a new name made from the class's; any other must be free in DestOuter
 * @param FlagMask the flags that the copies take over
 */
COREUOBJECT_API UObject* StaticDuplicateObject(
	const UObject* SourceObject, UObject* DestOuter, FName DestName = NAME_None, EObjectFlags FlagMask = RF_AllFlags);

template <typename T>
T* DuplicateObject(const T* SourceObject, UObject* Outer, FName Name = NAME_None)
{
	return SourceObject ? static_cast<T*>(StaticDuplicateObject(SourceObject, Outer ? Outer : GetTransientPackage(), Name)) : nullptr;
}

/**
 * An object in memory that is a Class, or null.
 * @param Outer null for a Name that is a whole path ("/Script/Game.Lantern")
 */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* Outer, const TCHAR* Name, bool bExactClass = false);
/** The same for one name directly inside Outer; null finds packages. */
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* Outer, FName Name, bool bExactClass = false);

template <typename T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool bExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, bExactClass));
}

enum class EFindFirstObjectOptions : uint8
{
	None = 0,
	/** Not objects of classes that derive from the one asked for. */
	ExactClass = 1,
};

/** An object anywhere that is a T and has that name, or whose path it is; null when there is none. */
COREUOBJECT_API UObject* StaticFindFirstObject(
	UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None);

template <typename T>
T* FindFirstObject(const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None)
{
	return static_cast<T*>(StaticFindFirstObject(T::StaticClass(), Name, Options));
}

class FLinkerInstancingContext;
class UPackageMap;

enum ELoadFlags : uint32
{
	LOAD_None = 0x00000000,
	/** Nothing is logged. */
	LOAD_NoWarn = 0x00000002,
	LOAD_NoVerify = 0x00000080,
	/** Nothing is logged. */
	LOAD_Quiet = 0x00002000,
	// What is in memory is found first in any case.
	LOAD_FindIfFail = 0x00004000,
	/** Blueprints have the classes from their files, even those that do not match any more. */
	LOAD_DisableCompileOnLoad = 0x00400000,
};

/**
 * The package in memory, or else from its file, with all that it refers to. Game thread.
 * @return null when there is no file, or it is damaged, cut, foreign or of a newer version, which is logged; nothing of it stays then
 */
COREUOBJECT_API UPackage* LoadPackage(UPackage* InOuter, const TCHAR* LongPackageNameOrFilename, uint32 LoadFlags = LOAD_None);

/**
 * An object in memory or else from its package's file, by its path, "/Game/Folder/Asset" for short, or "Class'Path'". Game thread.
 * The other parameters are the engine's; there is one place for files, and no instancing.
 * @return null when there is none that is a Class, which is logged
 */
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, bool bAllowObjectReconciliation = true,
	const FLinkerInstancingContext* InstancingContext = nullptr);
/** The same for a class that is BaseClass or derives from it. */
COREUOBJECT_API UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr);

template <typename T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags));
}

template <typename T>
UClass* LoadClass(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags);
}

/** Makes the objects of all types that loaded modules have registered, and then the class default objects. Later calls are cheap. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects();

#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)

/**
 * Destroys every object that cannot be reached through references (those that UObject::Serialize passes), classes and outers from a
 * rooted object, a native type or its default object, or one that has one of KeepFlags; garbage, too, unless it is rooted or held by a
 * TStrongObjectPtr, and clears references to it. Game thread, and never while an object is being made.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
/** Whether the collector is at work: objects may not be looked for. */
COREUOBJECT_API bool IsGarbageCollecting();
