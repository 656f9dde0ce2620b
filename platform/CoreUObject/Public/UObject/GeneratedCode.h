#pragma once

// What the header tool's generated code is made of: tables of plain values, and the functions that make reflection from them.

#include "UObject/Class.h"

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
	Byte,
	Int,
	Int64,
	Float,
	Double,
	Str,
	Name,
	Text,
	Enum,
	Object,
	Class,
	Struct,
	Array,
};

struct FPropertyInfo
{
	const char* Name = nullptr;
	EPropertyKind Kind = EPropertyKind::Bool;
	/** Of an enum, in bytes. */
	SIZE_T Size = 0;
	// The type that the property refers to; one of the three.
	UClass* (*Class)() = nullptr;
	UScriptStruct* (*Struct)() = nullptr;
	UEnum* (*Enum)() = nullptr;
	uint64 Flags = 0;
	SIZE_T Offset = 0;
	/** Sets a bit field in zeroed memory of the owner's size, which tells where it lies. */
	void (*SetBit)(void* Memory) = nullptr;
	SIZE_T OwnerSize = 0;
	/** An array's element. */
	const FPropertyInfo* Inner = nullptr;
	TTable<FMetaDataPair> MetaData = {};
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

struct FClassInfo
{
	TTypeInfo<UClass> Type = {};
	EClassFlags Flags = CLASS_None;
	const char* Config = nullptr;
	TTable<FFunctionInfo> Functions = {};
	void (*Constructor)(void* Memory, const FObjectInitializer& Initializer) = nullptr;
};

/** What C++ does with values of a struct. */
struct FStructOps
{
	void (*Construct)(void* Dest);
	void (*Destroy)(void* Dest);
	void (*Copy)(void* Dest, const void* Src);
};

template <typename T>
struct TStructOps
{
	static constexpr FStructOps Ops{
		[](void* Dest) { new (Dest) T(); },
		[](void* Dest) { static_cast<T*>(Dest)->~T(); },
		[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
	};
};

struct FStructInfo
{
	TTypeInfo<UScriptStruct> Type = {};
	const FStructOps* Ops = nullptr;
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

/** All types of a module. */
struct FModuleTypes
{
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
