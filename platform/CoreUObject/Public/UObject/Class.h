#pragma once

#include "UObject/Field.h"
#include "UObject/Object.h"

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

/** A type with properties. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_INTRINSIC_CLASS(UStruct, UField)

	~UStruct() override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
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
	/** Looks in super structs, too. */
	FProperty* FindPropertyByName(FName InName) const;

	/** Takes the property over and puts it behind those that are there. */
	void AddProperty(FProperty* Property);
	/** The same for a function. */
	void AddFunction(UFunction* Function);

	/** This type's own properties, in the order of declaration, linked by Next; those of super structs are not among them. */
	FField* ChildProperties = nullptr;
	/** This class's own functions, linked by Next. */
	UField* Children = nullptr;

	UStruct* SuperStruct = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
};

/** A USTRUCT. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UScriptStruct, UStruct)

	/** Constructs a value in raw memory. */
	void InitializeStruct(void* Dest) const;
	void DestroyStruct(void* Dest) const;
	/** Assigns to a constructed value. */
	void CopyScriptStruct(void* Dest, const void* Src) const;
	/** Whether all properties are equal. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags = 0) const;
	FString GetStructCPPName() const { return GetPrefixCPP() + GetName(); }

	const UECodeGen::FStructOps* Ops = nullptr;
};

/** What runs a function: the object, and the block of arguments and result. */
using FNativeFuncPtr = void (*)(UObject* Context, void* Parms);

/** A UFUNCTION. Its properties are its parameters and, last, its result; its size is that of the block that holds them. */
class COREUOBJECT_API UFunction : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UFunction, UStruct)

	bool HasAnyFunctionFlags(EFunctionFlags Flags) const { return (FunctionFlags & Flags) != FUNC_None; }
	/** Null for a function without result. */
	FProperty* GetReturnProperty() const;

	EFunctionFlags FunctionFlags = FUNC_None;
	FNativeFuncPtr Native = nullptr;
};

/** A class. Its object holds what all objects of the class share, the default object among it. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_INTRINSIC_CLASS(UClass, UStruct)

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
	/** The ini file of this class and those below, without "Default" and ".ini"; NAME_None for none. */
	FName ClassConfigName;

	/** Runs the C++ constructor on raw memory of the class's size. */
	void (*ClassConstructor)(void* Memory, const FObjectInitializer& Initializer) = nullptr;
	EClassFlags ClassFlags = CLASS_None;

	/** The number for the next name made from the class's. */
	mutable int32 ClassUnique = 0;

private:
	mutable UObject* ClassDefaultObject = nullptr;
};

/** A UENUM. Behind the sources' enumerators it has one named <Enum>_MAX, unless there is one that ends so. */
class COREUOBJECT_API UEnum : public UField
{
	DECLARE_INTRINSIC_CLASS(UEnum, UField)

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
