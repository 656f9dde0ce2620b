#include "Agent/BlueprintUtils.h"
#include "UObject/TextProperty.h"
#include "UObject/UnrealType.h"

namespace
{
FString ExportValue(const FProperty& Property, const void* Value)
{
	FString Text;
	// The value is its own default: then nothing of a struct is left out.
	Property.ExportText_Direct(Text, Value, Value, nullptr, PPF_None, nullptr);
	return Text;
}

/** For a property whose value can't be exported. */
FString GetFallback(const FProperty& Property)
{
	if (Property.IsA<FNumericProperty>())
	{
		return TEXT("0");
	}
	if (Property.IsA<FBoolProperty>())
	{
		return TEXT("False");
	}
	const bool bText = Property.IsA<FNameProperty>() || Property.IsA<FStrProperty>() || Property.IsA<FTextProperty>();
	return bText ? TEXT("") : TEXT("Error");
}
}

FString FKestrinBlueprintUtils::GetPropertyValueAsString(void* Container, FProperty* Property)
{
	if (!Container || !Property)
	{
		return TEXT("Invalid");
	}
	if (Property->HasAnyPropertyFlags(CPF_Parm | CPF_Transient | CPF_Deprecated | CPF_EditorOnly))
	{
		return FString();
	}
	const void* const Value = Property->ContainerPtrToValuePtr<void>(Container);
	if (!Value)
	{
		return TEXT("Invalid");
	}
	if (Property->IsA<FObjectProperty>() || Property->IsA<FWeakObjectProperty>())
	{
		const bool bRefers = CastField<FObjectPropertyBase>(Property)->GetObjectPropertyValue(Value) != nullptr;
		return bRefers ? ExportValue(*Property, Value) : FString(TEXT("None"));
	}
	if (Property->IsA<FSoftObjectProperty>())
	{
		const FString Text = ExportValue(*Property, Value);
		return Text.IsEmpty() ? FString(TEXT("None")) : Text;
	}
	try
	{
		return ExportValue(*Property, Value);
	}
	catch (...)
	{
		return GetFallback(*Property);
	}
}
