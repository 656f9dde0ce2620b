#include "SettingsField.h"

#include "KestrinSettings.h"
#include "UObject/UnrealType.h"

namespace
{
FString Quoted(const FString& Text)
{
	return FString::Printf(TEXT("\"%s\""),
		*Text.Replace(TEXT("\\"), TEXT("\\\\"), ESearchCase::CaseSensitive).Replace(TEXT("\""), TEXT("\\\""), ESearchCase::CaseSensitive));
}

/** The value in the notation that properties are imported from. */
FString ToPropertyText(const FJsonValue& Value, bool bDelimited)
{
	const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
	if (Value.TryGetArray(Items))
	{
		TArray<FString> Texts;
		for (const TSharedPtr<FJsonValue>& Item : *Items)
		{
			Texts.Add(ToPropertyText(*Item, true));
		}
		return FString::Printf(TEXT("(%s)"), *FString::Join(Texts, TEXT(",")));
	}
	FString Text;
	Value.TryGetString(Text);
	return bDelimited && Value.Type == EJson::String ? Quoted(Text) : Text;
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
	const FString Text = ToPropertyText(Value, false);
	const TCHAR* const End = Property->ImportText_Direct(*Text, Property->ContainerPtrToValuePtr<void>(Settings), Settings, PPF_None);
	if (!End || *End)
	{
		OutError = FString::Printf(TEXT("The field '%s' can't be set to '%s'."), *Name, *Text);
		return false;
	}
	FPropertyChangedEvent Event(Property);
	Settings->PostEditChangeProperty(Event);
	if (bSave)
	{
		Settings->SaveConfig();
	}
	return true;
}
