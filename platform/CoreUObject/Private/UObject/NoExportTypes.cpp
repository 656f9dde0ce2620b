#include "UObject/NoExportTypes.h"

#include "UObject/GeneratedCode.h"

// Reflected types are no plain structs, yet both compilers place their members as they do those of one.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

using namespace UECodeGen;

#define BASE_MEMBER(Type, MemberKind, Member)                                                                                              \
	{                                                                                                                                      \
		.Name = #Member, .Kind = EPropertyKind::MemberKind, .Flags = CPF_Edit | CPF_BlueprintVisible | CPF_SaveGame,                       \
		.Offset = offsetof(Type, Member)                                                                                                   \
	}
#define STRUCT_MEMBER(Type, MemberType, Member)                                                                                            \
	{                                                                                                                                      \
		.Name = #Member, .Kind = EPropertyKind::Struct, .Struct = &Z_Construct_UScriptStruct_##MemberType,                                 \
		.Flags = CPF_Edit | CPF_BlueprintVisible | CPF_SaveGame, .Offset = offsetof(Type, Member)                                          \
	}

/** The members, in the engine's order, which is the one of their text. */
struct FBaseStructures
{
	static constexpr FPropertyInfo Vector[] = { BASE_MEMBER(FVector, Double, X), BASE_MEMBER(FVector, Double, Y),
		BASE_MEMBER(FVector, Double, Z) };
	static constexpr FPropertyInfo Vector2D[] = { BASE_MEMBER(FVector2D, Double, X), BASE_MEMBER(FVector2D, Double, Y) };
	static constexpr FPropertyInfo Vector4[] = { BASE_MEMBER(FVector4, Double, X), BASE_MEMBER(FVector4, Double, Y),
		BASE_MEMBER(FVector4, Double, Z), BASE_MEMBER(FVector4, Double, W) };
	static constexpr FPropertyInfo Rotator[] = { BASE_MEMBER(FRotator, Double, Pitch), BASE_MEMBER(FRotator, Double, Yaw),
		BASE_MEMBER(FRotator, Double, Roll) };
	static constexpr FPropertyInfo Quat[] = { BASE_MEMBER(FQuat, Double, X), BASE_MEMBER(FQuat, Double, Y), BASE_MEMBER(FQuat, Double, Z),
		BASE_MEMBER(FQuat, Double, W) };
	static constexpr FPropertyInfo Transform[] = { STRUCT_MEMBER(FTransform, FQuat, Rotation),
		STRUCT_MEMBER(FTransform, FVector, Translation), STRUCT_MEMBER(FTransform, FVector, Scale3D) };
	static constexpr FPropertyInfo IntPoint[] = { BASE_MEMBER(FIntPoint, Int, X), BASE_MEMBER(FIntPoint, Int, Y) };
	static constexpr FPropertyInfo LinearColor[] = { BASE_MEMBER(FLinearColor, Float, R), BASE_MEMBER(FLinearColor, Float, G),
		BASE_MEMBER(FLinearColor, Float, B), BASE_MEMBER(FLinearColor, Float, A) };
	static constexpr FPropertyInfo Color[] = { BASE_MEMBER(FColor, Byte, B), BASE_MEMBER(FColor, Byte, G), BASE_MEMBER(FColor, Byte, R),
		BASE_MEMBER(FColor, Byte, A) };
	static constexpr FPropertyInfo Guid[] = { BASE_MEMBER(FGuid, Int, A), BASE_MEMBER(FGuid, Int, B), BASE_MEMBER(FGuid, Int, C),
		BASE_MEMBER(FGuid, Int, D) };
};

namespace
{
constexpr FMetaDataPair BlueprintType[] = { { "BlueprintType", "true" } };

template <typename T>
constexpr FStructInfo MakeInfo(const char* Name, TTable<FPropertyInfo> Members, UScriptStruct* (*Super)() = nullptr)
{
	FStructInfo Info;
	Info.Type.Package = "/Script/CoreUObject";
	Info.Type.Name = Name;
	Info.Type.Size = sizeof(T);
	Info.Type.Alignment = alignof(T);
	Info.Type.Super = Super;
	Info.Type.Properties = Members;
	Info.Type.MetaData = BlueprintType;
	Info.Ops = &TStructOps<T>::Ops;
	return Info;
}
}

#define IMPLEMENT_BASE_STRUCTURE(Name, ...)                                                                                                \
	UScriptStruct* Z_Construct_UScriptStruct_F##Name()                                                                                     \
	{                                                                                                                                      \
		static constexpr FStructInfo Info = MakeInfo<F##Name>(#Name, __VA_ARGS__);                                                         \
		static UScriptStruct* Made = nullptr;                                                                                              \
		return Construct(Made, Info);                                                                                                      \
	}

IMPLEMENT_BASE_STRUCTURE(Vector, FBaseStructures::Vector)
IMPLEMENT_BASE_STRUCTURE(Vector2D, FBaseStructures::Vector2D)
IMPLEMENT_BASE_STRUCTURE(Vector4, FBaseStructures::Vector4)
IMPLEMENT_BASE_STRUCTURE(Rotator, FBaseStructures::Rotator)
IMPLEMENT_BASE_STRUCTURE(Quat, FBaseStructures::Quat)
IMPLEMENT_BASE_STRUCTURE(Transform, FBaseStructures::Transform)
IMPLEMENT_BASE_STRUCTURE(IntPoint, FBaseStructures::IntPoint)
IMPLEMENT_BASE_STRUCTURE(LinearColor, FBaseStructures::LinearColor)
IMPLEMENT_BASE_STRUCTURE(Color, FBaseStructures::Color)
IMPLEMENT_BASE_STRUCTURE(Guid, FBaseStructures::Guid)
IMPLEMENT_BASE_STRUCTURE(DateTime, {})
IMPLEMENT_BASE_STRUCTURE(Timespan, {})
IMPLEMENT_BASE_STRUCTURE(TopLevelAssetPath, {})
IMPLEMENT_BASE_STRUCTURE(SoftObjectPath, {})
IMPLEMENT_BASE_STRUCTURE(SoftClassPath, {}, &Z_Construct_UScriptStruct_FSoftObjectPath)

namespace
{
constexpr UScriptStruct* (*Structs[])() = { &Z_Construct_UScriptStruct_FVector, &Z_Construct_UScriptStruct_FVector2D,
	&Z_Construct_UScriptStruct_FVector4, &Z_Construct_UScriptStruct_FRotator, &Z_Construct_UScriptStruct_FQuat,
	&Z_Construct_UScriptStruct_FTransform, &Z_Construct_UScriptStruct_FIntPoint, &Z_Construct_UScriptStruct_FLinearColor,
	&Z_Construct_UScriptStruct_FColor, &Z_Construct_UScriptStruct_FGuid, &Z_Construct_UScriptStruct_FDateTime,
	&Z_Construct_UScriptStruct_FTimespan, &Z_Construct_UScriptStruct_FTopLevelAssetPath, &Z_Construct_UScriptStruct_FSoftObjectPath,
	&Z_Construct_UScriptStruct_FSoftClassPath };
constexpr FModuleTypes Types{ .Structs = Structs };
const FRegisterModuleTypes Register(Types);
}
