#pragma once

// CoreUObject: objects with reflection. Classes, structs, enums and functions with their properties, as the header tool has read
// them from the sources; class default objects, values as text, config files, garbage collection.
//
// It leaves out what nothing here needs yet: packages on disk, undo, sets, maps and delegates as properties, interfaces, soft
// references, networking, threads (objects belong to the game thread).

#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

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
	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	/** The names from the package down, as in "/Script/Game.Lantern"; below the first object of a package ":" stands once for ".". */
	FString GetPathName() const;
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
	bool IsTemplate() const { return HasAnyFlags(RF_ClassDefaultObject); }

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
	/** Called when an editor has changed a property. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);

	UFunction* FindFunction(FName FunctionName) const;
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

/** Whether the pointer may be used. */
inline bool IsValid(const UObject* Object)
{
	return Object != nullptr;
}

/** The object's name, "None" for null. */
COREUOBJECT_API FString GetNameSafe(const UObject* Object);
COREUOBJECT_API FString GetPathNameSafe(const UObject* Object);
