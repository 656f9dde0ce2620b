#include "UObject/ScalarProperty.h"

#include "Misc/Parse.h"
#include "PropertyText.h"

IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FNameProperty)
IMPLEMENT_FIELD(FTextProperty)
IMPLEMENT_FIELD(FBoolProperty)

namespace
{
/** Reads the quoted texts of MACRO("a", "b"). @return behind the closing bracket, or null */
const TCHAR* ImportTextMacro(const TCHAR* Buffer, TArray<FString>& Texts)
{
	for (FString& Text : Texts)
	{
		Buffer = PropertyText::SkipBlanks(Buffer);
		Buffer = PropertyText::ReadQuoted(Buffer, Text);
		Buffer = Buffer ? PropertyText::SkipBlanks(Buffer) : nullptr;
		if (!Buffer || *Buffer != (&Text == &Texts.Last() ? ')' : ','))
		{
			return nullptr;
		}
		++Buffer;
	}
	return Buffer;
}
}

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	PropertyText::ExportString(ValueStr, GetPropertyValue(Value), PortFlags);
}

const TCHAR* FStrProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags) const
{
	return PropertyText::ImportString(Buffer, *static_cast<FString*>(Value), PortFlags);
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	PropertyText::ExportString(ValueStr, GetPropertyValue(Value).ToString(), PortFlags);
}

const TCHAR* FNameProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = PropertyText::ImportString(Buffer, Text, PortFlags);
	if (End)
	{
		SetPropertyValue(Value, FName(Text));
	}
	return End;
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const FText& Text = GetPropertyValue(Value);
	FString Namespace;
	FString Key;
	if (Text.GetNamespaceAndKey(Namespace, Key))
	{
		ValueStr += TEXT("NSLOCTEXT(");
		FParse::AppendQuotedString(ValueStr, Namespace);
		ValueStr += TEXT(", ");
		FParse::AppendQuotedString(ValueStr, Key);
		ValueStr += TEXT(", ");
		FParse::AppendQuotedString(ValueStr, Text.ToString());
		ValueStr += TEXT(")");
	}
	else if (Text.IsCultureInvariant())
	{
		ValueStr += TEXT("INVTEXT(");
		FParse::AppendQuotedString(ValueStr, Text.ToString());
		ValueStr += TEXT(")");
	}
	else
	{
		PropertyText::ExportString(ValueStr, Text.ToString(), PortFlags);
	}
}

const TCHAR* FTextProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags) const
{
	static constexpr std::u16string_view Localized = TEXT("NSLOCTEXT(");
	static constexpr std::u16string_view Invariant = TEXT("INVTEXT(");
	TArray<FString> Parts;
	if (PropertyText::StartsWith(Buffer, Localized))
	{
		Parts.SetNum(3);
		const TCHAR* const End = ImportTextMacro(Buffer + Localized.size(), Parts);
		SetPropertyValue(Value, FText::Localized(*Parts[0], *Parts[1], *Parts[2]));
		return End;
	}
	Parts.SetNum(1);
	if (PropertyText::StartsWith(Buffer, Invariant))
	{
		const TCHAR* const End = ImportTextMacro(Buffer + Invariant.size(), Parts);
		SetPropertyValue(Value, FText::AsCultureInvariant(Parts[0]));
		return End;
	}
	const TCHAR* const End = PropertyText::ImportString(Buffer, Parts[0], PortFlags);
	SetPropertyValue(Value, FText::FromString(Parts[0]));
	return End;
}

void FBoolProperty::SetPropertyValue(void* Value, bool bNewValue) const
{
	uint8& Byte = *static_cast<uint8*>(Value);
	if (IsNativeBool())
	{
		Byte = bNewValue ? 1 : 0;
	}
	else
	{
		Byte = static_cast<uint8>(bNewValue ? Byte | FieldMask : Byte & ~FieldMask);
	}
}

void FBoolProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	if (!Ar.IsObjectReferenceCollector())
	{
		uint8 Byte = GetPropertyValue(Value);
		Ar << Byte;
		SetPropertyValue(Value, Byte != 0);
	}
}

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += GetPropertyValue(Value) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	FString Word;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	const bool bTrue = Word == TEXT("True") || Word == TEXT("1") || Word == TEXT("Yes");
	if (!bTrue && Word != TEXT("False") && Word != TEXT("0") && Word != TEXT("No"))
	{
		return nullptr;
	}
	SetPropertyValue(Value, bTrue);
	return End;
}
