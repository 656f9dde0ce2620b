#include "Agent/BlueprintUtils.h"
#include "EdGraphSchema_K2.h"

namespace
{
const TCHAR* const ContainerNames[] = { TEXT("None"), TEXT("Array"), TEXT("Set"), TEXT("Map") };

struct FPinTypeFlag
{
	const TCHAR* Name;
	bool (*Get)(const FEdGraphPinType& PinType);
	void (*Set)(FEdGraphPinType& PinType, bool bValue);
};

#define PIN_TYPE_FLAG(Name, Member)                                                                                                        \
	{                                                                                                                                      \
		TEXT(Name), [](const FEdGraphPinType& PinType) { return bool(PinType.Member); },                                                   \
			[](FEdGraphPinType& PinType, bool bValue) { PinType.Member = bValue; }                                                         \
	}
const FPinTypeFlag PinTypeFlags[] = {
	PIN_TYPE_FLAG("Reference", bIsReference),
	PIN_TYPE_FLAG("Const", bIsConst),
	PIN_TYPE_FLAG("Weak", bIsWeakPointer),
	PIN_TYPE_FLAG("UObjectWrapper", bIsUObjectWrapper),
};
#undef PIN_TYPE_FLAG

/** What a pin's type and the value side of a map have in common. */
void WriteTerminal(FJsonObject& Json, FName Category, FName SubCategory, const TWeakObjectPtr<UObject>& SubCategoryObject)
{
	Json.SetStringField(TEXT("Category"), Category.ToString());
	Json.SetStringField(TEXT("SubCategory"), SubCategory.ToString());
	if (SubCategoryObject.IsValid())
	{
		Json.SetStringField(TEXT("SubCategoryObject"), SubCategoryObject->GetPathName());
	}
}

void ReadTerminal(const FJsonObject& Json, FName& Category, FName& SubCategory, TWeakObjectPtr<UObject>& SubCategoryObject)
{
	FString Text;
	if (Json.TryGetStringField(TEXT("Category"), Text))
	{
		Category = FName(*Text);
	}
	if (Json.TryGetStringField(TEXT("SubCategory"), Text))
	{
		SubCategory = FName(*Text);
	}
	if (Json.TryGetStringField(TEXT("SubCategoryObject"), Text))
	{
		SubCategoryObject = StaticFindObject(UObject::StaticClass(), nullptr, *Text, false);
	}
}

EPinContainerType ReadContainer(const FJsonObject& Json)
{
	FString Text;
	Json.TryGetStringField(TEXT("Container"), Text);
	for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(ContainerNames)); ++Index)
	{
		if (Text == ContainerNames[Index])
		{
			return static_cast<EPinContainerType>(Index);
		}
	}
	return EPinContainerType::None;
}

void ReadFlags(const FJsonObject& Json, FEdGraphPinType& PinType)
{
	const TArray<TSharedPtr<FJsonValue>>* Names = nullptr;
	if (!Json.TryGetArrayField(TEXT("Flags"), Names))
	{
		return;
	}
	for (const TSharedPtr<FJsonValue>& Name : *Names)
	{
		for (const FPinTypeFlag& Flag : PinTypeFlags)
		{
			if (Name->AsString() == Flag.Name)
			{
				Flag.Set(PinType, true);
			}
		}
	}
}
}

TSharedPtr<FJsonObject> FKestrinBlueprintUtils::ConvertEdGraphPinTypeToJson(const FEdGraphPinType& PinType)
{
	const TSharedPtr<FJsonObject> Json = MakeShared<FJsonObject>();
	WriteTerminal(*Json, PinType.PinCategory, PinType.PinSubCategory, PinType.PinSubCategoryObject);
	Json->SetStringField(TEXT("Container"), ContainerNames[static_cast<int32>(PinType.ContainerType)]);

	const FEdGraphTerminalType& ValueType = PinType.PinValueType;
	if (PinType.IsMap() && !ValueType.TerminalCategory.IsNone())
	{
		const TSharedPtr<FJsonObject> ValueJson = MakeShared<FJsonObject>();
		WriteTerminal(*ValueJson, ValueType.TerminalCategory, ValueType.TerminalSubCategory, ValueType.TerminalSubCategoryObject);
		Json->SetObjectField(TEXT("ValueType"), ValueJson);
	}

	TArray<TSharedPtr<FJsonValue>> Flags;
	for (const FPinTypeFlag& Flag : PinTypeFlags)
	{
		if (Flag.Get(PinType))
		{
			Flags.Add(MakeShared<FJsonValueString>(Flag.Name));
		}
	}
	Json->SetArrayField(TEXT("Flags"), Flags);
	return Json;
}

FEdGraphPinType FKestrinBlueprintUtils::ConvertJsonToEdGraphPinType(const TSharedPtr<FJsonObject>& JsonObject)
{
	FEdGraphPinType PinType;
	const TSharedPtr<FJsonObject>* Json = nullptr;
	if (!JsonObject->TryGetObjectField(TEXT("Type"), Json))
	{
		return PinType;
	}
	ReadTerminal(**Json, PinType.PinCategory, PinType.PinSubCategory, PinType.PinSubCategoryObject);
	PinType.ContainerType = ReadContainer(**Json);

	const TSharedPtr<FJsonObject>* ValueJson = nullptr;
	if (PinType.IsMap() && (*Json)->TryGetObjectField(TEXT("ValueType"), ValueJson))
	{
		FEdGraphTerminalType& ValueType = PinType.PinValueType;
		ReadTerminal(**ValueJson, ValueType.TerminalCategory, ValueType.TerminalSubCategory, ValueType.TerminalSubCategoryObject);
	}
	ReadFlags(**Json, PinType);
	return PinType;
}

FEdGraphPinType FKestrinBlueprintUtils::ConvertPropertyToEdGraphPinType(const FProperty* Property)
{
	FEdGraphPinType PinType;
	if (Property)
	{
		GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(Property, PinType);
	}
	return PinType;
}

TSharedPtr<FJsonObject> FKestrinBlueprintUtils::GetVarJSonObjectFromProperty(FProperty* Property)
{
	return ConvertEdGraphPinTypeToJson(ConvertPropertyToEdGraphPinType(Property));
}
