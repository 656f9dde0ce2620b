#include "Agent/BlueprintUtils.h"
#include "EdGraphSchema_K2.h"
#include "UObject/Interface.h"
#include "UObject/NoExportTypes.h"

namespace
{
/** A type by its path: in memory, or else loaded. */
template <typename TypeType>
TypeType* FindOrLoadType(const FString& Path)
{
	UObject* Type = StaticFindObject(TypeType::StaticClass(), nullptr, *Path);
	if (!Type)
	{
		Type = StaticLoadObject(TypeType::StaticClass(), nullptr, *Path, nullptr, LOAD_None, nullptr, true);
	}
	return Cast<TypeType>(Type);
}

UObject* ResolveEnum(const FJsonObject& Json)
{
	FString Path;
	return Json.TryGetStringField(TEXT("EnumType"), Path) && !Path.IsEmpty() ? FindOrLoadType<UEnum>(Path) : nullptr;
}

UObject* ResolveStruct(const FJsonObject& Json)
{
	FString Path;
	if (!Json.TryGetStringField(TEXT("StructType"), Path) || Path.IsEmpty())
	{
		return nullptr;
	}
	const TPair<const TCHAR*, UScriptStruct*> BaseStructures[] = {
		{ TEXT("Vector"), TBaseStructure<FVector>::Get() },
		{ TEXT("Rotator"), TBaseStructure<FRotator>::Get() },
		{ TEXT("Transform"), TBaseStructure<FTransform>::Get() },
	};
	for (const TPair<const TCHAR*, UScriptStruct*>& Each : BaseStructures)
	{
		if (Path == Each.Key)
		{
			return Each.Value;
		}
	}
	return FindOrLoadType<UScriptStruct>(Path);
}

UObject* ResolveClass(const FJsonObject& Json)
{
	FString Path;
	if (!Json.TryGetStringField(TEXT("PropertyClass"), Path))
	{
		return nullptr;
	}
	UClass* const Class = FindOrLoadType<UClass>(Path);
	return Class ? Class : StaticLoadClass(UObject::StaticClass(), nullptr, *Path);
}

struct FPropertyTypeRow
{
	const TCHAR* Type;
	FName Category;
	FName SubCategory = NAME_None;
	/** For a type that refers to another one: without that other one there is no type. */
	UObject* (*Resolve)(const FJsonObject& Json) = nullptr;
};

/** Float and double are the same: reals of double precision. */
const TArray<FPropertyTypeRow>& GetPropertyTypeRows()
{
	using Schema = UEdGraphSchema_K2;
	static const TArray<FPropertyTypeRow> Rows = {
		{ TEXT("BoolProperty"), Schema::PC_Boolean },
		{ TEXT("ByteProperty"), Schema::PC_Byte },
		{ TEXT("IntProperty"), Schema::PC_Int },
		{ TEXT("Int64Property"), Schema::PC_Int64 },
		{ TEXT("FloatProperty"), Schema::PC_Real, Schema::PC_Double },
		{ TEXT("DoubleProperty"), Schema::PC_Real, Schema::PC_Double },
		{ TEXT("NameProperty"), Schema::PC_Name },
		{ TEXT("StrProperty"), Schema::PC_String },
		{ TEXT("TextProperty"), Schema::PC_Text },
		{ TEXT("EnumProperty"), Schema::PC_Byte, NAME_None, &ResolveEnum },
		{ TEXT("StructProperty"), Schema::PC_Struct, NAME_None, &ResolveStruct },
		{ TEXT("ObjectProperty"), Schema::PC_Object, NAME_None, &ResolveClass },
		{ TEXT("SoftObjectProperty"), Schema::PC_SoftObject, NAME_None, &ResolveClass },
		{ TEXT("ClassProperty"), Schema::PC_Class, NAME_None, &ResolveClass },
		{ TEXT("SoftClassProperty"), Schema::PC_SoftClass, NAME_None, &ResolveClass },
	};
	return Rows;
}

FEdGraphPinType MakePinType(const FPropertyTypeRow& Row, const FJsonObject& Json)
{
	FEdGraphPinType PinType;
	UObject* const Type = Row.Resolve ? Row.Resolve(Json) : nullptr;
	if (Row.Resolve && !Type)
	{
		return PinType;
	}
	PinType.PinCategory = Row.Category;
	PinType.PinSubCategory = Row.SubCategory;
	PinType.PinSubCategoryObject = Type;
	const UClass* const Class = Cast<UClass>(Type);
	if (Class && Row.Category == UEdGraphSchema_K2::PC_Object && Class->IsChildOf(UInterface::StaticClass()))
	{
		PinType.PinCategory = UEdGraphSchema_K2::PC_Interface;
	}
	return PinType;
}
}

FEdGraphPinType FKestrinBlueprintUtils::GetVarEdGraphPinTypeFromJSonObject(const TSharedPtr<FJsonObject>* JsonObject)
{
	FString Type;
	if (!(*JsonObject)->TryGetStringField(TEXT("Type"), Type))
	{
		return FEdGraphPinType();
	}
	if (Type == TEXT("ArrayProperty"))
	{
		const TSharedPtr<FJsonObject>* InnerType = nullptr;
		if (!(*JsonObject)->TryGetObjectField(TEXT("InnerType"), InnerType))
		{
			return FEdGraphPinType();
		}
		// An array of arrays becomes an array.
		FEdGraphPinType PinType = GetVarEdGraphPinTypeFromJSonObject(InnerType);
		PinType.ContainerType = EPinContainerType::Array;
		return PinType;
	}
	const FPropertyTypeRow* const Row =
		GetPropertyTypeRows().FindByPredicate([&Type](const FPropertyTypeRow& Each) { return Type == Each.Type; });
	return Row ? MakePinType(*Row, **JsonObject) : FEdGraphPinType();
}
