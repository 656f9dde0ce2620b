#pragma once

// The reflection macros and the flags of objects, classes, functions and properties, with the engine's values.

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "Misc/EnumClassFlags.h"

class FObjectInitializer;
class UClass;
class UEnum;
class UFunction;
class UObject;
class UScriptStruct;

// What the header tool reads. Only GENERATED_BODY stands for code: a macro of the .generated.h, named after its line.
#define UCLASS(...)
#define USTRUCT(...)
#define UENUM(...)
#define UPROPERTY(...)
#define UFUNCTION(...)
#define UMETA(...)
#define UPARAM(...)
#define UINTERFACE(...)
#define UDELEGATE(...)
#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)

/** A member's name as an FName; an error of the compiler when there is no such member. */
#define GET_MEMBER_NAME_CHECKED(ClassName, MemberName) (static_cast<void>(sizeof(&ClassName::MemberName)), FName(TEXT(#MemberName)))

/** A reflected enum's object. */
template <typename EnumType>
UEnum* StaticEnum();

enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001,
	/** Stays without being referred to, as long as the collector is told to keep such objects. */
	RF_Standalone = 0x00000002,
	/** Made by C++ code's registration; never collected. */
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	/** A template for other objects, beside the class default objects. */
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	/** Made by the package loader, its values not read yet. */
	RF_NeedLoad = 0x00000400,
	RF_NeedPostLoad = 0x00001000,
	/** Made by CreateDefaultSubobject. */
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	/** MarkAsGarbage has been called. */
	RF_MirroredGarbage = 0x40000000,
	RF_AllFlags = 0xffffffff,
	/** What a subobject takes over from the object around it. */
	RF_PropagateToSubObjects = RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient,
};
ENUM_CLASS_FLAGS(EObjectFlags)

/** What Rename does beside giving the name; a uint32 as in the engine. */
using ERenameFlags = uint32;
constexpr ERenameFlags REN_None = 0x0000;
/** Only tells whether the name could be given. */
constexpr ERenameFlags REN_Test = 0x0002;
constexpr ERenameFlags REN_DoNotDirty = 0x0004;
/** Nothing here makes redirectors. */
constexpr ERenameFlags REN_DontCreateRedirectors = 0x0010;
/** The open transaction does not record it. */
constexpr ERenameFlags REN_NonTransactional = 0x0020;

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000,
	CLASS_Abstract = 0x00000001,
	CLASS_DefaultConfig = 0x00000002,
	CLASS_Config = 0x00000004,
	CLASS_Transient = 0x00000008,
	CLASS_Native = 0x00000080,
	CLASS_NotPlaceable = 0x00000200,
	CLASS_EditInlineNew = 0x00001000,
	CLASS_CollapseCategories = 0x00002000,
	CLASS_PerObjectConfig = 0x00000400,
	CLASS_Interface = 0x00004000,
	CLASS_Const = 0x00010000,
	CLASS_CompiledFromBlueprint = 0x00040000,
	CLASS_MinimalAPI = 0x00080000,
	CLASS_DefaultToInstanced = 0x00200000,
	CLASS_Deprecated = 0x02000000,
	CLASS_HideDropDown = 0x04000000,
	CLASS_Intrinsic = 0x10000000,
	/** What a class takes over from its super class. */
	CLASS_Inherit = CLASS_DefaultConfig | CLASS_Config | CLASS_Transient | CLASS_NotPlaceable | CLASS_EditInlineNew | CLASS_Const |
		CLASS_DefaultToInstanced | CLASS_Deprecated,
};
ENUM_CLASS_FLAGS(EClassFlags)

enum EFunctionFlags : uint32
{
	FUNC_None = 0x00000000,
	FUNC_Final = 0x00000001,
	FUNC_BlueprintAuthorityOnly = 0x00000004,
	FUNC_BlueprintCosmetic = 0x00000008,
	FUNC_Net = 0x00000040,
	FUNC_NetReliable = 0x00000080,
	FUNC_Exec = 0x00000200,
	FUNC_Native = 0x00000400,
	FUNC_Event = 0x00000800,
	FUNC_Static = 0x00002000,
	FUNC_NetMulticast = 0x00004000,
	FUNC_MulticastDelegate = 0x00010000,
	FUNC_Public = 0x00020000,
	FUNC_Private = 0x00040000,
	FUNC_Protected = 0x00080000,
	FUNC_Delegate = 0x00100000,
	FUNC_NetServer = 0x00200000,
	FUNC_HasOutParms = 0x00400000,
	FUNC_NetClient = 0x01000000,
	FUNC_BlueprintCallable = 0x04000000,
	FUNC_BlueprintEvent = 0x08000000,
	FUNC_BlueprintPure = 0x10000000,
	FUNC_EditorOnly = 0x20000000,
	FUNC_Const = 0x40000000,
};
ENUM_CLASS_FLAGS(EFunctionFlags)

enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_Net = 0x0000000000000020,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_NonNullable = 0x0000000000001000,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_RequiredParm = 0x0000000000008000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	CPF_NoClear = 0x0000000002000000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_Deprecated = 0x0000000020000000,
	CPF_RepNotify = 0x0000000100000000,
	CPF_Interp = 0x0000000200000000,
	/** The objects inside the value are instanced. */
	CPF_ContainsInstancedReference = 0x0000008000000000,
	CPF_NonTransactional = 0x0000000400000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_AssetRegistrySearchable = 0x0000010000000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_BlueprintCallable = 0x0000100000000000,
	CPF_BlueprintAuthorityOnly = 0x0000200000000000,
	CPF_TextExportTransient = 0x0000400000000000,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_PersistentInstance = 0x0002000000000000,
	CPF_UObjectWrapper = 0x0004000000000000,
	CPF_SkipSerialization = 0x0080000000000000,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

/** How a value is written as text and read. */
enum EPropertyPortFlags : uint32
{
	PPF_None = 0x00000000,
	/** Strings and names are quoted, since other text follows. */
	PPF_Delimited = 0x00000002,
	/** Members that are transient are written, too. */
	PPF_IncludeTransient = 0x00000020,
};
