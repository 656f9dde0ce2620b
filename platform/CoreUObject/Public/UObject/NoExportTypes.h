#pragma once

// Reflection for the types of Core, which know nothing of it themselves.

#include "Misc/DateTime.h"
#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"

/** For a type that is compared and saved by its own operators. */
template <typename T>
struct TBaseStructureTraits : TStructOpsTypeTraitsBase2<T>
{
	enum
	{
		WithSerializer = true,
		WithIdenticalViaEquality = true,
	};
};

/** For one that has a text of its own, too. */
template <typename T>
struct TTextStructureTraits : TBaseStructureTraits<T>
{
	enum
	{
		WithExportTextItem = true,
		WithImportTextItem = true,
	};
};

#define DECLARE_BASE_STRUCTURE(Type, Traits)                                                                                               \
	DLLEXPORT UScriptStruct* Z_Construct_UScriptStruct_##Type();                                                                           \
	template <>                                                                                                                            \
	struct TStructOpsTypeTraits<Type> : Traits<Type>                                                                                       \
	{                                                                                                                                      \
	};                                                                                                                                     \
	template <>                                                                                                                            \
	struct TBaseStructure<Type>                                                                                                            \
	{                                                                                                                                      \
		static UScriptStruct* Get() { return Z_Construct_UScriptStruct_##Type(); }                                                         \
	};

DECLARE_BASE_STRUCTURE(FVector, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FVector2D, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FVector4, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FRotator, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FQuat, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FTransform, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FIntPoint, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FLinearColor, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FColor, TBaseStructureTraits)
DECLARE_BASE_STRUCTURE(FGuid, TTextStructureTraits)
DECLARE_BASE_STRUCTURE(FDateTime, TTextStructureTraits)
DECLARE_BASE_STRUCTURE(FTimespan, TTextStructureTraits)
DECLARE_BASE_STRUCTURE(FTopLevelAssetPath, TTextStructureTraits)
DECLARE_BASE_STRUCTURE(FSoftObjectPath, TTextStructureTraits)
DECLARE_BASE_STRUCTURE(FSoftClassPath, TTextStructureTraits)

#undef DECLARE_BASE_STRUCTURE
