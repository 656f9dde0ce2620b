#include "Dom/JsonObject.h"

namespace
{
using FArray = TArray<TSharedPtr<FJsonValue>>;
}

TSharedPtr<FJsonValue> FJsonObject::TryGetField(const FString& Name) const
{
	const TSharedPtr<FJsonValue>* const Found = Values.Find(Name);
	return Found ? *Found : nullptr;
}

TSharedPtr<FJsonValue> FJsonObject::GetField(const FString& Name) const
{
	TSharedPtr<FJsonValue> Field = TryGetField(Name);
	if (!Field.IsValid())
	{
		UE_LOG(LogJson, Warning, TEXT("Field %s was not found."), *Name);
		Field = MakeShared<FJsonValueNull>();
	}
	return Field;
}

void FJsonObject::SetField(const FString& Name, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(Name, Value);
}

void FJsonObject::SetStringField(const FString& Name, const FString& Value)
{
	SetField(Name, MakeShared<FJsonValueString>(Value));
}

void FJsonObject::SetNumberField(const FString& Name, double Value)
{
	SetField(Name, MakeShared<FJsonValueNumber>(Value));
}

void FJsonObject::SetBoolField(const FString& Name, bool bValue)
{
	SetField(Name, MakeShared<FJsonValueBoolean>(bValue));
}

void FJsonObject::SetArrayField(const FString& Name, const FArray& Value)
{
	SetField(Name, MakeShared<FJsonValueArray>(Value));
}

void FJsonObject::SetObjectField(const FString& Name, const TSharedPtr<FJsonObject>& Value)
{
	if (Value.IsValid())
	{
		SetField(Name, MakeShared<FJsonValueObject>(Value));
	}
	else
	{
		SetField(Name, MakeShared<FJsonValueNull>());
	}
}

FString FJsonObject::GetStringField(const FString& Name) const
{
	return GetField(Name)->AsString();
}

double FJsonObject::GetNumberField(const FString& Name) const
{
	return GetField(Name)->AsNumber();
}

int32 FJsonObject::GetIntegerField(const FString& Name) const
{
	int32 Number = 0;
	GetField(Name)->TryGetNumber(Number);
	return Number;
}

bool FJsonObject::GetBoolField(const FString& Name) const
{
	return GetField(Name)->AsBool();
}

const FArray& FJsonObject::GetArrayField(const FString& Name) const
{
	// The field's value stays alive through this object; a missing one gives the shared empty array.
	return GetField(Name)->AsArray();
}

TSharedPtr<FJsonObject> FJsonObject::GetObjectField(const FString& Name) const
{
	return GetField(Name)->AsObject();
}

bool FJsonObject::TryGetStringField(const FString& Name, FString& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetString(Out);
}

bool FJsonObject::TryGetNumberField(const FString& Name, double& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetNumber(Out);
}

bool FJsonObject::TryGetNumberField(const FString& Name, int32& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetNumber(Out);
}

bool FJsonObject::TryGetBoolField(const FString& Name, bool& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetBool(Out);
}

bool FJsonObject::TryGetArrayField(const FString& Name, const FArray*& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetArray(Out);
}

bool FJsonObject::TryGetObjectField(const FString& Name, const TSharedPtr<FJsonObject>*& Out) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(Name);
	return Field.IsValid() && Field->TryGetObject(Out);
}
