#include "UObject/ScalarProperty.h"

#include "Misc/Parse.h"
#include "PropertyText.h"

#include <limits>

namespace
{
template <typename T>
const TCHAR* ImportInteger(const TCHAR* Buffer, void* PropertyValue)
{
	FString Word;
	int64 Number = 0;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	if (!PropertyText::ParseInteger(Word, Number) || Number < std::numeric_limits<T>::min() || Number > std::numeric_limits<T>::max())
	{
		return nullptr;
	}
	*static_cast<T*>(PropertyValue) = static_cast<T>(Number);
	return End;
}

template <typename T>
const TCHAR* ImportReal(const TCHAR* Buffer, void* PropertyValue)
{
	FString Word;
	double Number = 0;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	if (!PropertyText::ParseReal(Word, Number))
	{
		return nullptr;
	}
	*static_cast<T*>(PropertyValue) = static_cast<T>(Number);
	return End;
}

void ExportString(FString& ValueStr, const FString& Text, uint32 PortFlags)
{
	if (PortFlags & PPF_Delimited)
	{
		FParse::AppendQuotedString(ValueStr, Text);
	}
	else
	{
		ValueStr += Text;
	}
}

const TCHAR* ImportString(const TCHAR* Buffer, FString& Out, uint32 PortFlags)
{
	if (PortFlags & PPF_Delimited)
	{
		return PropertyText::ReadDelimited(Buffer, Out);
	}
	Out = Buffer;
	return Buffer + Out.Len();
}

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

void FIntProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += LexToString(GetPropertyValue(PropertyValue));
}

const TCHAR* FIntProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	return ImportInteger<int32>(Buffer, PropertyValue);
}

void FInt64Property::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += LexToString(GetPropertyValue(PropertyValue));
}

const TCHAR* FInt64Property::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	return ImportInteger<int64>(Buffer, PropertyValue);
}

void FFloatProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += FString::Printf(TEXT("%f"), static_cast<double>(GetPropertyValue(PropertyValue)));
}

const TCHAR* FFloatProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	return ImportReal<float>(Buffer, PropertyValue);
}

void FDoubleProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += FString::Printf(TEXT("%f"), GetPropertyValue(PropertyValue));
}

const TCHAR* FDoubleProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	return ImportReal<double>(Buffer, PropertyValue);
}

void FStrProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32 PortFlags) const
{
	ExportString(ValueStr, GetPropertyValue(PropertyValue), PortFlags);
}

const TCHAR* FStrProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32 PortFlags) const
{
	return ImportString(Buffer, *static_cast<FString*>(PropertyValue), PortFlags);
}

void FNameProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32 PortFlags) const
{
	ExportString(ValueStr, GetPropertyValue(PropertyValue).ToString(), PortFlags);
}

const TCHAR* FNameProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = ImportString(Buffer, Text, PortFlags);
	SetPropertyValue(PropertyValue, FName(Text));
	return End;
}

void FTextProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32 PortFlags) const
{
	const FText& Text = GetPropertyValue(PropertyValue);
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
		ExportString(ValueStr, Text.ToString(), PortFlags);
	}
}

const TCHAR* FTextProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32 PortFlags) const
{
	static constexpr std::u16string_view Localized = TEXT("NSLOCTEXT(");
	static constexpr std::u16string_view Invariant = TEXT("INVTEXT(");
	const std::u16string_view Text(Buffer);
	TArray<FString> Parts;
	if (Text.starts_with(Localized))
	{
		Parts.SetNum(3);
		const TCHAR* const End = ImportTextMacro(Buffer + Localized.size(), Parts);
		SetPropertyValue(PropertyValue, FText::Localized(*Parts[0], *Parts[1], *Parts[2]));
		return End;
	}
	Parts.SetNum(1);
	if (Text.starts_with(Invariant))
	{
		const TCHAR* const End = ImportTextMacro(Buffer + Invariant.size(), Parts);
		SetPropertyValue(PropertyValue, FText::AsCultureInvariant(Parts[0]));
		return End;
	}
	const TCHAR* const End = ImportString(Buffer, Parts[0], PortFlags);
	SetPropertyValue(PropertyValue, FText::FromString(Parts[0]));
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

bool FBoolProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetPropertyValue(A) == (B && GetPropertyValue(B));
}

void FBoolProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	FString Word;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	const bool bTrue = Word == TEXT("True") || Word == TEXT("1") || Word == TEXT("Yes");
	if (!bTrue && Word != TEXT("False") && Word != TEXT("0") && Word != TEXT("No"))
	{
		return nullptr;
	}
	SetPropertyValue(PropertyValue, bTrue);
	return End;
}
