#pragma once

// CoreUObject: objects with reflection. Classes, structs, enums and functions with their properties, as the header tool has read
// them from the sources; class default objects, values as text, config files, garbage collection.
//
// It leaves out what nothing here needs: redirectors, asynchronous loading, networking, threads (objects belong to the game thread).

#include "Serialization/Archive.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

class FAssetRegistryTagsContext;
class FConfigCacheIni;
class FProperty;
class UFunction;
class UPackage;
class UStruct;
struct FPropertyChangedEvent;

extern CORE_API FConfigCacheIni* GConfig;

/** The base of all reflected classes. Objects are made by NewObject alone, and the collector destroys them. */
class COREUOBJECT_API UObject
{
public:
	using ThisClass = UObject;
	static UClass* StaticClass();

	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject();
	UE_NONCOPYABLE(UObject)

	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	/** The outermost object around this one, itself if it stands alone. */
	UObject* GetOutermostObject() const;
	/** The package around this object, null for one outside of any. */
	UPackage* GetPackage() const;
	UPackage* GetOutermost() const { return GetPackage(); }
	/** The nearest object around this one that is a Target, or null. */
	UObject* GetTypedOuter(const UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}
	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	/**
	 * The names from the package down, as in "/Script/Game.Lantern"; below the first object of a package ":" stands once for ".".
	 * @param StopOuter the path begins below it
	 */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	/** "Class /Path.Name" */
	FString GetFullName() const;
	bool IsA(const UStruct* SomeBase) const;
	template <typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}
	bool IsIn(const UObject* SomeOuter) const;

	EObjectFlags GetFlags() const { return ObjectFlags; }
	void SetFlags(EObjectFlags NewFlags) { ObjectFlags |= NewFlags; }
	void ClearFlags(EObjectFlags OldFlags) { ObjectFlags &= ~OldFlags; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != RF_NoFlags; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) == FlagsToCheck; }
	/** Whether this object, or one around it, is a class default object or archetype. */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;
	bool IsDefaultSubobject() const { return HasAnyFlags(RF_DefaultSubObject); }
	/**
	 * What the object's values are compared with when it is saved: for a class default object the super class's, for an object whose
	 * outer's archetype has one of the same name that one, otherwise the class default object.
	 */
	UObject* GetArchetype() const;
	/** Something that a user sees as one thing of the project: public, directly in a package that can be saved. */
	virtual bool IsAsset() const;

	/**
	 * Ends the object's life: IsValid is false from now on, searches pass it over, the next collection clears what refers to it and
	 * destroys it, unless it is rooted or a TStrongObjectPtr holds it.
	 */
	void MarkAsGarbage();
	void ClearGarbage() { ClearFlags(RF_MirroredGarbage); }

	/** The collector keeps the object, and what it refers to, until RemoveFromRoot. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;
	/** The object's place in the table of all objects. */
	int32 GetUniqueID() const { return InternalIndex; }

	/** Called once the object's properties have their first values, those of the config files included. */
	virtual void PostInitProperties() {}
	/** Called before the collector destroys the object; its references may be gone already. */
	virtual void BeginDestroy() {}
	/**
	 * Writes or reads the object's values; for an archive that collects references, passes these alone. A class with values that are no
	 * properties adds them: saving, undo, duplication and collection all come here. The references must be passed where they are kept.
	 */
	virtual void Serialize(FArchive& Ar);
	/** Called once the object and all that was loaded with it have their values. */
	virtual void PostLoad() {}
	/** Calls PostLoad now for an object that still waits for it. */
	void ConditionalPostLoad();
	/** Called for each object that duplication has made, when all have their values. */
	virtual void PostDuplicate(bool bDuplicateForPIE) {}
	struct FAssetRegistryTag;
	/** What the Asset Registry is to know of the object without loading it: the properties marked AssetRegistrySearchable. */
	virtual void GetAssetRegistryTags(FAssetRegistryTagsContext Context) const;

	/**
	 * To be called before a change: an open transaction records the object as it is.
	 * @param bAlwaysMarkDirty the package becomes dirty even when nothing was recorded
	 * @return whether it was recorded
	 */
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	/** Called around what undo and redo do to the object. */
	virtual void PreEditUndo() {}
	virtual void PostEditUndo() {}
	/** Of an object that is saved, in a package that is. @return whether the package is dirty now */
	bool MarkPackageDirty() const;
	/**
	 * Gives the object another name, another place or both.
	 * @param NewName null for a free name: the present one, or one made from the class's
	 * @return false when the name is taken; nothing has changed then
	 */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);

	/**
	 * For constructors: makes an object inside this one. When this one is made after an archetype, the new object takes over the values
	 * of the archetype's object of the same name.
	 */
	template <typename T>
	T* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<T*>(CreateDefaultSubobject(SubobjectName, T::StaticClass(), T::StaticClass(), true, bTransient));
	}
	/** @return null for an abstract class, which must not be required */
	UObject* CreateDefaultSubobject(
		FName SubobjectName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);
	UObject* GetDefaultSubobjectByName(FName SubobjectName) const;
	/** Empties OutDefaultSubobjects first. */
	void GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects) const;

	/** Called when an editor has changed a property. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);

	/** Where the C++ part of an interface lies in the object; null when the class has none, or has the interface without C++. */
	void* GetNativeInterfaceAddress(const UClass* InterfaceClass);
	UFunction* FindFunction(FName FunctionName) const;
	/** The same for a function that must be there. */
	UFunction* FindFunctionChecked(FName FunctionName) const;
	/** Calls a function through reflection. Parms is its block of arguments and result, laid out as the function's properties say. */
	void ProcessEvent(UFunction* Function, void* Parms);

	/**
	 * Reads the config properties from the class's file in GConfig, the sections of its super classes first. A class with
	 * DefaultConfig has <Project>/Config/Default<Name>.ini, any other <Project>/Saved/Config/LinuxEditor/<Name>.ini over it.
	 * @param Filename another file to read
	 */
	void LoadConfig(
		UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr, uint32 PropagationFlags = 0, FProperty* PropertyToLoad = nullptr);
	/**
	 * Writes the properties that have one of Flags to the class's section; everything else in the file stays as it is. A write that
	 * fails is logged.
	 * @param bAllowCopyToDefaultObject the class default object takes over the values, too
	 */
	void SaveConfig(uint64 Flags = CPF_Config, const TCHAR* Filename = nullptr, FConfigCacheIni* Config = GConfig,
		bool bAllowCopyToDefaultObject = true);
	/** Writes the config properties to <Project>/Config/Default<Name>.ini. @return false when the file can't be written */
	bool TryUpdateDefaultConfigFile(const FString& SpecificFileLocation = FString());
	/**
	 * Writes one config property to a file and leaves what the file says of the others.
	 * @return the stand-in's own: false when the file can't be written, which is logged
	 */
	bool UpdateSinglePropertyInConfigFile(const FProperty* InProperty, const FString& InConfigIniName);
	/** <Project>/Config/Default<Name>.ini, by the class's config name. */
	FString GetDefaultConfigFilename() const;

private:
	friend class FObjectTable;
	friend struct FIntrinsicTypes;
	friend class FObjectInitializer;

	EObjectFlags ObjectFlags = RF_NoFlags;
	int32 InternalIndex = INDEX_NONE;
	UClass* ClassPrivate = nullptr;
	FName NamePrivate;
	UObject* OuterPrivate = nullptr;
};

/** Whether there is an object that is no garbage. */
inline bool IsValid(const UObject* Object)
{
	return Object && !Object->HasAnyFlags(RF_MirroredGarbage);
}

/** Of an object that is read and does not fit, the pointer becomes null. */
template <typename T>
requires(std::is_base_of_v<UObject, T> && !std::is_same_v<UObject, T>) FArchive& operator<<(FArchive& Ar, T*& Object)
{
	UObject* Base = Object;
	Ar << Base;
	Object = Base && Base->IsA(T::StaticClass()) ? static_cast<T*>(Base) : nullptr;
	return Ar;
}

template <typename T>
FArchive& operator<<(FArchive& Ar, TObjectPtr<T>& Object)
{
	T* Raw = Object;
	Ar << Raw;
	Object = Raw;
	return Ar;
}

/** The object's name, "None" for null. */
COREUOBJECT_API FString GetNameSafe(const UObject* Object);
COREUOBJECT_API FString GetPathNameSafe(const UObject* Object);
