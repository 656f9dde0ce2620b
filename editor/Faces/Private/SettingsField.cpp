#include "SettingsField.h"

#include "KestrinSettings.h"
#include "SettingsHost/SettingsSections.h"
#include "UObject/UnrealType.h"

namespace
{
FString Quoted(const FString& Text)
{
	return FString::Printf(TEXT("\"%s\""),
		*Text.Replace(TEXT("\\"), TEXT("\\\\"), ESearchCase::CaseSensitive).Replace(TEXT("\""), TEXT("\\\""), ESearchCase::CaseSensitive));
}

bool IsScalar(const FJsonValue& Value)
{
	return Value.Type == EJson::String || Value.Type == EJson::Number || Value.Type == EJson::Boolean;
}

/** The value in the notation that properties are imported from; false for one that no field of the settings can have. */
bool ToPropertyText(const FJsonValue& Value, FString& OutText)
{
	const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
	if (!Value.TryGetArray(Items))
	{
		return IsScalar(Value) && Value.TryGetString(OutText);
	}
	TArray<FString> Texts;
	for (const TSharedPtr<FJsonValue>& Item : *Items)
	{
		if (!IsScalar(*Item))
		{
			return false;
		}
		Texts.Add(Item->Type == EJson::String ? Quoted(Item->AsString()) : Item->AsString());
	}
	OutText = FString::Printf(TEXT("(%s)"), *FString::Join(Texts, TEXT(",")));
	return true;
}

/** An enumerator goes by its name: a number would be taken whether the enum has it or not. */
bool IsOfType(const FJsonValue& Value, const FProperty& Property)
{
	return Value.Type == EJson::String || !CastField<FEnumProperty>(&Property);
}
}

bool SetSettingsField(const FString& Name, const FJsonValue& Value, bool bSave, FString& OutError)
{
	UKestrinSettings* const Settings = GetMutableDefault<UKestrinSettings>();
	FProperty* const Property = Settings->GetClass()->FindPropertyByName(FName(Name));
	if (!Property)
	{
		OutError = FString::Printf(TEXT("The settings have no field '%s'."), *Name);
		return false;
	}
	void* const Field = Property->ContainerPtrToValuePtr<void>(Settings);
	FString Kept;
	Property->ExportTextItem_Direct(Kept, Field, nullptr, Settings, PPF_None);
	FString Text;
	const TCHAR* const End = ToPropertyText(Value, Text) && IsOfType(Value, *Property)
		? Property->ImportText_Direct(*Text, Field, Settings, PPF_None, nullptr)
		: nullptr;
	if (!End || *End)
	{
		// A list may have been read in part.
		Property->ImportText_Direct(*Kept, Field, Settings, PPF_None, nullptr);
		OutError = FString::Printf(TEXT("The field '%s' can't be set to '%s'."), *Name, *Text);
		return false;
	}
	if (!FHostSettings::FinishEdit(*Settings, *Property, bSave ? ESettingsSave::AllProperties : ESettingsSave::Nothing))
	{
		OutError = FString::Printf(TEXT("The field '%s' is set, but the settings can't be saved."), *Name);
		return false;
	}
	return true;
}
