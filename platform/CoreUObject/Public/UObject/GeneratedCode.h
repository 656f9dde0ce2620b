#pragma once

// What the header tool's generated code is made of: tables of plain values, and the functions that make reflection from them.

#include "UObject/NoExportTypes.h"
#include "UObject/ScriptDelegates.h"

#include <cstddef>

class FOutputDevice;

/** For code that treats zeroed memory as an object to find out where a bit of it lies. */
#define UE_NO_SANITIZE __attribute__((no_sanitize("undefined")))

namespace UECodeGen
{
/** A table in generated code, or none. */
template <typename T>
struct TTable
{
	const T* Data = nullptr;
	int32 Num = 0;

	constexpr TTable() = default;
	template <SIZE_T Count>
	constexpr TTable(const T (&Elements)[Count])
		: Data(Elements)
		, Num(static_cast<int32>(Count))
	{
	}
	constexpr const T* begin() const { return Data; }
	constexpr const T* end() const { return Data + Num; }
};

// Names and texts are UTF-8.

struct FMetaDataPair
{
	const char* Key;
	const char* Value;
};

enum class EPropertyKind : uint8
{
	Bool,
	Int8,
	Int16,
	Int,
	Int64,
	Byte,
	UInt16,
	UInt32,
	UInt64,
	Float,
	Double,
	Str,
	Name,
	Text,
	Enum,
	Object,
	Class,
	WeakObject,
	SoftObject,
	SoftClass,
	Interface,
	Struct,
	Array,
	Set,
	Map,
	Delegate,
	MulticastDelegate,
};

struct FPropertyInfo
{
	const char* Name = nullptr;
	EPropertyKind Kind = EPropertyKind::Bool;
	/** Of an enum, in bytes; negative for one of a signed type. */
	int32 Size = 0;
	// The type that the property refers to; one of these.
	UClass* (*Class)() = nullptr;
	UScriptStruct* (*Struct)() = nullptr;
	UEnum* (*Enum)() = nullptr;
	UFunction* (*Signature)() = nullptr;
	uint64 Flags = 0;
	SIZE_T Offset = 0;
	int32 ArrayDim = 1;
	/** Sets a bit field in zeroed memory of the owner's size, which tells where it lies. */
	void (*SetBit)(void* Memory) = nullptr;
	SIZE_T OwnerSize = 0;
	/** A container's element, a map's key. */
	const FPropertyInfo* Inner = nullptr;
	/** A map's value. */
	const FPropertyInfo* Value = nullptr;
	TTable<FMetaDataPair> MetaData = {};
};

/** What FPropertyInfo says of an enum. */
template <typename EnumType>
constexpr int32 GetEnumSize()
{
	constexpr int32 Size = sizeof(EnumType);
	return std::is_signed_v<std::underlying_type_t<EnumType>> ? -Size : Size;
}

/** Tells structs from dynamic delegates, which look the same to a reader of the source. */
template <typename T>
struct TStructOrDelegate
{
	static constexpr EPropertyKind Kind = std::is_base_of_v<FScriptDelegate, T> ? EPropertyKind::Delegate
		: std::is_base_of_v<FMulticastScriptDelegate, T>                        ? EPropertyKind::MulticastDelegate
																				: EPropertyKind::Struct;
	using FGetStruct = UScriptStruct* (*)();
	using FGetSignature = UFunction* (*)();

	static constexpr FGetStruct GetStruct()
	{
		if constexpr (Kind == EPropertyKind::Struct)
		{
			return &TBaseStructure<T>::Get;
		}
		else
		{
			return nullptr;
		}
	}
	static constexpr FGetSignature GetSignature()
	{
		if constexpr (Kind == EPropertyKind::Struct)
		{
			return nullptr;
		}
		else
		{
			return &T::GetSignature;
		}
	}
};

struct FFunctionInfo
{
	const char* Name = nullptr;
	EFunctionFlags Flags = FUNC_None;
	FNativeFuncPtr Native = nullptr;
	SIZE_T ParmsSize = 0;
	TTable<FPropertyInfo> Parameters = {};
	TTable<FMetaDataPair> MetaData = {};
};

template <typename T>
struct TTypeInfo
{
	const char* Package = nullptr;
	/** Without prefix. */
	const char* Name = nullptr;
	SIZE_T Size = 0;
	SIZE_T Alignment = 1;
	T* (*Super)() = nullptr;
	TTable<FPropertyInfo> Properties = {};
	TTable<FMetaDataPair> MetaData = {};
};

/** A base class of a class that may be an interface. */
struct FInterfaceInfo
{
	/** Null when it is no reflected interface. */
	UClass* (*Class)() = nullptr;
	/** Where the base class lies in the class, in bytes. */
	int32 (*Offset)() = nullptr;
};

/** Tells reflected interfaces from other base classes. */
template <typename ClassType, typename BaseType>
constexpr FInterfaceInfo GetInterfaceInfo()
{
	if constexpr (requires { typename BaseType::UClassType; })
	{
		return { &BaseType::UClassType::StaticClass,
			[]
			{
			// Some address that is not null, for null converts to null.
			const auto* const Object = reinterpret_cast<ClassType*>(alignof(std::max_align_t));
			return static_cast<int32>(
				reinterpret_cast<const uint8*>(static_cast<const BaseType*>(Object)) - reinterpret_cast<const uint8*>(Object));
				} };
	}
	else
	{
		return {};
	}
}

struct FClassInfo
{
	TTypeInfo<UClass> Type = {};
	EClassFlags Flags = CLASS_None;
	const char* Config = nullptr;
	TTable<FFunctionInfo> Functions = {};
	TTable<FInterfaceInfo> Interfaces = {};
	void (*Constructor)(void* Memory, const FObjectInitializer& Initializer) = nullptr;
};

/** What C++ does with values of a struct. */
struct FStructOps
{
	void (*Construct)(void* Dest) = nullptr;
	void (*Destroy)(void* Dest) = nullptr;
	void (*Copy)(void* Dest, const void* Src) = nullptr;
	// Each of these is null for a struct that leaves it to its properties, see TStructOpsTypeTraits.
	bool (*Serialize)(FArchive& Ar, void* Value) = nullptr;
	bool (*Identical)(const void* A, const void* B, uint32 PortFlags) = nullptr;
	bool (*ExportText)(
		FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* Root) = nullptr;
	bool (*ImportText)(const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText) = nullptr;
	/** Null for a struct that can't be a key. */
	uint32 (*Hash)(const void* Value) = nullptr;
	/** By "=="; null for a struct without one. */
	bool (*Equal)(const void* A, const void* B) = nullptr;
	/** Serialize passes object references that no property has. */
	bool bSerializesReferences = false;
};

template <typename T>
struct TStructOps
{
	using FTraits = TStructOpsTypeTraits<T>;
	static const T& Get(const void* Value) { return *static_cast<const T*>(Value); }

	static constexpr FStructOps Make()
	{
		FStructOps Result;
		Result.Construct = [](void* Dest) { new (Dest) T(); };
		Result.Destroy = [](void* Dest) { static_cast<T*>(Dest)->~T(); };
		Result.Copy = [](void* Dest, const void* Src) { *static_cast<T*>(Dest) = Get(Src); };
		if constexpr (requires(const T& Value) { GetTypeHash(Value); })
		{
			Result.Hash = [](const void* Value) -> uint32 { return GetTypeHash(Get(Value)); };
		}
		if constexpr (requires(const T& Value) { Value == Value; })
		{
			Result.Equal = [](const void* A, const void* B) -> bool { return Get(A) == Get(B); };
		}
		if constexpr (FTraits::WithIdenticalViaEquality)
		{
			Result.Identical = [](const void* A, const void* B, uint32) -> bool { return Get(A) == Get(B); };
		}
		if constexpr (FTraits::WithSerializer)
		{
			Result.Serialize = &Serialize;
			Result.bSerializesReferences = FTraits::WithAddStructReferencedObjects;
		}
		if constexpr (FTraits::WithExportTextItem)
		{
			Result.ExportText = [](FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags,
									UObject* Root) { return Get(Value).ExportTextItem(ValueStr, Get(Default), Parent, PortFlags, Root); };
		}
		if constexpr (FTraits::WithImportTextItem)
		{
			Result.ImportText = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
			{ return static_cast<T*>(Value)->ImportTextItem(Buffer, PortFlags, Parent, ErrorText); };
		}
		return Result;
	}

	static bool Serialize(FArchive& Ar, void* Value)
	{
		if constexpr (requires { static_cast<T*>(Value)->Serialize(Ar); })
		{
			return static_cast<T*>(Value)->Serialize(Ar);
		}
		else
		{
			Ar << *static_cast<T*>(Value);
			return true;
		}
	}

	static constexpr FStructOps Ops = Make();
};

struct FStructInfo
{
	TTypeInfo<UScriptStruct> Type = {};
	const FStructOps* Ops = nullptr;
};

/** The signature of a dynamic delegate. */
struct FSignatureInfo
{
	/** The class that declares it, or null for one of a package. */
	UClass* (*Class)() = nullptr;
	const char* Package = nullptr;
	FFunctionInfo Function = {};
};

struct FEnumeratorInfo
{
	const char* Name = nullptr;
	int64 Value = 0;
	TTable<FMetaDataPair> MetaData = {};
};

struct FEnumInfo
{
	const char* Package = nullptr;
	const char* Name = nullptr;
	/** An enum class. */
	bool bScoped = false;
	TTable<FEnumeratorInfo> Enumerators = {};
	TTable<FMetaDataPair> MetaData = {};
};

// Each makes the type's object on its first call and keeps it in Made before it looks at other types, which may refer back.
COREUOBJECT_API UClass* Construct(UClass*& Made, const FClassInfo& Info);
COREUOBJECT_API UScriptStruct* Construct(UScriptStruct*& Made, const FStructInfo& Info);
COREUOBJECT_API UEnum* Construct(UEnum*& Made, const FEnumInfo& Info);
COREUOBJECT_API UFunction* Construct(UFunction*& Made, const FSignatureInfo& Info);

/** All types of a module. */
struct FModuleTypes
{
	TTable<UFunction* (*)()> Signatures = {};
	TTable<UEnum* (*)()> Enums = {};
	TTable<UScriptStruct* (*)()> Structs = {};
	TTable<UClass* (*)()> Classes = {};
};

/** Notes a module's types when its library is loaded; ProcessNewlyLoadedUObjects makes them. */
struct COREUOBJECT_API FRegisterModuleTypes
{
	explicit FRegisterModuleTypes(const FModuleTypes& Types);
};
}
