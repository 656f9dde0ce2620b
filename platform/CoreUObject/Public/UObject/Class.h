#pragma once

#include "UObject/Field.h"
#include "UObject/Object.h"
#include "UObject/StructOpsTypeTraits.h"
#include "UObject/TopLevelAssetPath.h"

class FArchive;
enum class EFindFirstObjectOptions : uint8;

#define DECLARE_INTRINSIC_CLASS(Type, SuperType)                                                                                           \
public:                                                                                                                                    \
	using Super = SuperType;                                                                                                               \
	using ThisClass = Type;                                                                                                                \
	static UClass* StaticClass();

namespace UECodeGen
{
struct FStructOps;
}

/** A part of reflection that is an object itself. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_INTRINSIC_CLASS(UField, UObject)

	/** The definition, for types that are not made by C++. */
	void Serialize(FArchive& Ar) override;

	/** The class that this is a member of, itself for a class. */
	UClass* GetOwnerClass() const;

	const FString& GetMetaData(const FName& Key) const { return MetaData.Get(Key); }
	bool HasMetaData(const FName& Key) const { return MetaData.Has(Key); }
	void SetMetaData(const FName& Key, const FString& Value) { MetaData.Set(Key, Value); }
	FText GetDisplayNameText() const { return MetaData.GetDisplayName(GetName()); }
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** The next function of the same class. */
	UField* Next = nullptr;

private:
	FFieldMetaData MetaData;
};

/**
 * A type with properties. One made at run time is built in three steps: its super struct, its properties, StaticLink; it must not be
 * changed while values of it are alive.
 */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_INTRINSIC_CLASS(UStruct, UField)

	~UStruct() override;
	void Serialize(FArchive& Ar) override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	void SetSuperStruct(UStruct* NewSuperStruct);
	/** In bytes, for one object or block; aligned. */
	int32 GetStructureSize() const { return PropertiesSize; }
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	bool IsChildOf(const UStruct* SomeBase) const;
	template <typename T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}
	/** "F" for structs, "U" or "A" for classes: what a type's C++ name has before the reflected name. */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }
	/** "/Script/Module" or the asset's package, and the name. */
	FTopLevelAssetPath GetStructPathName() const;
	/** Looks in super structs, too. */
	FProperty* FindPropertyByName(FName InName) const;
	/** All properties, this type's own before those of each super struct. */
	const TArray<FProperty*>& GetAllProperties() const;

	/** Takes the property over and puts it behind those that are there. */
	void AddCppProperty(FProperty* Property);
	/** The same for a function. */
	void AddFunction(UFunction* Function);
	/** Lays the properties out behind those of the super struct: their offsets, and the type's size and alignment. */
	void StaticLink(bool bRelinkExistingProperties = true);
	/** Deletes this type's own properties. */
	void DestroyChildPropertiesAndResetPropertyLinks();

	/** Constructs a block of values that C++ has no constructor for, such as a function's arguments. */
	virtual void InitializeStruct(void* Dest) const;
	virtual void DestroyStruct(void* Dest) const;

	/**
	 * Writes each property under its name and type, with its size, so that it is read again after others have come or gone; reads what
	 * still fits and passes over the rest. Transient properties stay out of files.
	 * @param Defaults a value of DefaultsStruct, this type or a super struct: what equals it is not written. Null writes everything.
	 */
	void SerializeTaggedProperties(FArchive& Ar, void* Data, const UStruct* DefaultsStruct, const void* Defaults) const;
	/** Hands the object references of a value to a collector of references. */
	void SerializeReferences(FArchive& Ar, void* Data) const;

	/** This type's own properties, in the order of declaration, linked by Next; those of super structs are not among them. */
	FField* ChildProperties = nullptr;
	/** This class's own functions, linked by Next. */
	UField* Children = nullptr;

	UStruct* SuperStruct = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;

private:
	void SerializeFunctions(FArchive& Ar);
	void SerializeProperties(FArchive& Ar);
	void ForgetPropertyLinks() const;

	// Both are made on first use.
	mutable TArray<FProperty*> PropertyLink;
	mutable TArray<FProperty*> RefLink;
	mutable bool bPropertiesLinked = false;
};

/** A USTRUCT. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UScriptStruct, UStruct)

	/** Constructs a value in raw memory. */
	void InitializeStruct(void* Dest) const override;
	void DestroyStruct(void* Dest) const override;
	/** Assigns to a constructed value. */
	void CopyScriptStruct(void* Dest, const void* Src) const;
	/** Whether all properties are equal. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags = 0) const;
	FString GetStructCPPName() const { return GetPrefixCPP() + GetName(); }

	/** Null for a struct that C++ does not know. */
	const UECodeGen::FStructOps* Ops = nullptr;
};

/** What runs a function: the object, and the block of arguments and result. */
using FNativeFuncPtr = void (*)(UObject* Context, void* Parms);

/** A UFUNCTION. Its properties are its parameters and, last, its result; its size is that of the block that holds them. */
class COREUOBJECT_API UFunction : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UFunction, UStruct)

	void Serialize(FArchive& Ar) override;
	bool HasAnyFunctionFlags(EFunctionFlags Flags) const { return (FunctionFlags & Flags) != FUNC_None; }
	/** Null for a function without result. */
	FProperty* GetReturnProperty() const;

	EFunctionFlags FunctionFlags = FUNC_None;
	/** Null for a function that has no C++ code. */
	FNativeFuncPtr Native = nullptr;
};

/** An interface that a class implements. */
struct FImplementedInterface
{
	UClass* Class = nullptr;
	/** Of the interface's C++ part in the object, in bytes; 0 when there is none. */
	int32 PointerOffset = 0;
	/** By a Blueprint, not by C++ code. */
	bool bImplementedByK2 = false;
};

/** A class. Its object holds what all objects of the class share, the default object among it. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UClass, UStruct)

	void Serialize(FArchive& Ar) override;

	/** A type in memory by its short name or its path, or null. Short names are looked for among all objects. */
	static UObject* TryFindTypeSlow(UClass* TypeClass, const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions = {});
	/** The same where objects may not be looked for at the moment; then null. */
	static UObject* TryFindTypeSlowSafe(UClass* TypeClass, const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions = {});
	template <typename T>
	static T* TryFindTypeSlow(const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions = {})
	{
		return static_cast<T*>(TryFindTypeSlow(T::StaticClass(), InPathNameOrShortName, InOptions));
	}

	UClass* GetSuperClass() const { return static_cast<UClass*>(SuperStruct); }
	EClassFlags GetClassFlags() const { return ClassFlags; }
	bool HasAnyClassFlags(EClassFlags Flags) const { return (ClassFlags & Flags) != CLASS_None; }
	const TCHAR* GetPrefixCPP() const override { return TEXT("U"); }

	/** The object that holds the defaults: made on first use, its config read. Null only when it is missing and not to be made. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template <typename T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	/** "Default__Name" */
	FName GetDefaultObjectName() const;
	UFunction* FindFunctionByName(FName InName, bool bIncludeSuper = true) const;
	/** Whether the class or a super class implements the interface, or one derived from it. */
	bool ImplementsInterface(const UClass* SomeInterface) const;
	/** Takes over from the super class what objects of the class are made with. */
	void Bind();

	/** The properties that this class and its super classes have beyond the C++ class: what objects of a Blueprint's class have more. */
	void ConstructAddedProperties(UObject* Object) const;
	void DestroyAddedProperties(UObject* Object) const;

	/** This class's own; those of super classes are not among them. */
	TArray<FImplementedInterface> Interfaces;
	/** The Blueprint that the class was compiled from. */
	UObject* ClassGeneratedBy = nullptr;
	/** The ini file of this class and those below, without "Default" and ".ini"; NAME_None for none. */
	FName ClassConfigName;

	/** Runs the C++ constructor on raw memory of the class's size. */
	void (*ClassConstructor)(void* Memory, const FObjectInitializer& Initializer) = nullptr;
	EClassFlags ClassFlags = CLASS_None;

	/** The number for the next name made from the class's. */
	mutable int32 ClassUnique = 0;

	/** Made on first use, see GetDefaultObject. */
	mutable UObject* ClassDefaultObject = nullptr;
};

/** A UENUM. Behind the sources' enumerators it has one named <Enum>_MAX, unless there is one that ends so. */
class COREUOBJECT_API UEnum : public UField
{
	DECLARE_INTRINSIC_CLASS(UEnum, UField)

	void Serialize(FArchive& Ar) override;
	/** The one at the end counts, too. */
	int32 NumEnums() const { return Names.Num(); }
	bool IsValidEnumValue(int64 Value) const { return GetIndexByValue(Value) != INDEX_NONE; }
	int32 GetIndexByValue(int64 Value) const;
	/** Names are taken with and without "Enum::", ignoring case. @return INDEX_NONE for an unknown one */
	int32 GetIndexByNameString(const FString& Name) const;
	/** @return INDEX_NONE for an unknown name */
	int64 GetValueByNameString(const FString& Name) const;
	int64 GetValueByIndex(int32 Index) const { return Names[Index].Value; }
	/** Of an enum class "Enum::Name". */
	FName GetNameByIndex(int32 Index) const { return Names[Index].Key; }
	/** "Name". Empty for an index or value that the enum has not. */
	FString GetNameStringByIndex(int32 Index) const;
	FString GetNameStringByValue(int64 Value) const { return GetNameStringByIndex(GetIndexByValue(Value)); }
	FText GetDisplayNameTextByIndex(int32 Index) const;
	FText GetDisplayNameTextByValue(int64 Value) const { return GetDisplayNameTextByIndex(GetIndexByValue(Value)); }
	FText GetToolTipTextByIndex(int32 Index) const;
	using UField::GetMetaData;
	using UField::HasMetaData;
	/** An enumerator's metadata. */
	const FString& GetMetaData(const FName& Key, int32 Index) const { return EnumeratorMetaData[Index].Get(Key); }
	bool HasMetaData(const FName& Key, int32 Index) const { return EnumeratorMetaData[Index].Has(Key); }

	void AddEnumerator(FName FullName, int64 Value, const FFieldMetaData& InMetaData);
	void RemoveAllEnumerators();
	/** The C++ name, prefix included. */
	FString CppType;

private:
	TArray<TPair<FName, int64>> Names;
	TArray<FFieldMetaData> EnumeratorMetaData;
};

/** A reflected struct's object, for a C++ type that does not have StaticStruct() itself. */
template <typename T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return T::StaticStruct(); }
};

template <typename T>
UClass* StaticClass()
{
	return T::StaticClass();
}

/** The class default object, for reading. */
template <typename T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template <typename T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}
