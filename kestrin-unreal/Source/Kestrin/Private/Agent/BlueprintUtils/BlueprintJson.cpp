#include "Agent/BlueprintUtils.h"
#include "ContentFilter.h"
#include "JsonUtils.h"
#include "UObject/UnrealType.h"

// What the documents of Blueprints and behavior trees share.

TSharedPtr<FJsonObject> FKestrinBlueprintUtils::ReadProperties(const UClass* Class, UObject* Container)
{
	const TSharedPtr<FJsonObject> Properties = MakeShared<FJsonObject>();
	for (TFieldIterator<FProperty> Property(Class); Property; ++Property)
	{
		if (PassesContentFilter(**Property))
		{
			const TSharedPtr<FJsonObject> Json = MakeShared<FJsonObject>();
			Json->SetObjectField(TEXT("Type"), GetVarJSonObjectFromProperty(*Property));
			Json->SetStringField(TEXT("Value"), GetPropertyValueAsString(Container, *Property));
			Properties->SetObjectField(Property->GetName(), Json);
		}
	}
	return Properties;
}

FString FKestrinBlueprintUtils::SerializeJson(const TSharedPtr<FJsonObject>& JsonObject)
{
	return ToCondensedJson(JsonObject.ToSharedRef());
}

FString FKestrinBlueprintUtils::SerializeMessage(const TCHAR* Key, const FString& Message)
{
	const TSharedPtr<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(Key, Message);
	return SerializeJson(Document);
}
