#include "UObject/EnumProperty.h"

#include "PropertyText.h"

namespace
{
/** The enumerator's name, or the number for a value that the enum has not. */
FString ExportEnum(const UEnum* Enum, int64 Value)
{
	const FString Name = Enum->GetNameStringByValue(Value);
	return Name.IsEmpty() ? LexToString(Value) : Name;
}

/** A number of that many bytes, sign or none. */
bool FitsInto(int64 Value, int32 Size)
{
	if (Size == 8)
	{
		return true;
	}
	const int64 Limit = int64(1) << (8 * Size);
	return Value >= -Limit / 2 && Value < Limit;
}

const TCHAR* ImportEnum(const UEnum* Enum, int32 Size, const TCHAR* Buffer, int64& OutValue)
{
	FString Word;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	const int32 Index = Enum->GetIndexByNameString(Word);
	if (Index != INDEX_NONE)
	{
		OutValue = Enum->GetValueByIndex(Index);
		return End;
	}
	return PropertyText::ParseInteger(Word, OutValue) && FitsInto(OutValue, Size) ? End : nullptr;
}
}

FString FByteProperty::GetCPPType() const
{
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : FString(TEXT("uint8"));
}

void FByteProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	const int32 Value = GetPropertyValue(PropertyValue);
	ValueStr += Enum ? ExportEnum(Enum, Value) : LexToString(Value);
}

const TCHAR* FByteProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	int64 Value = 0;
	const TCHAR* End = nullptr;
	if (Enum)
	{
		End = ImportEnum(Enum, 1, Buffer, Value);
	}
	else
	{
		FString Word;
		End = PropertyText::ReadWord(Buffer, Word);
		End = PropertyText::ParseInteger(Word, Value) ? End : nullptr;
	}
	if (!End || Value < 0 || Value > 0xFF)
	{
		return nullptr;
	}
	SetPropertyValue(PropertyValue, static_cast<uint8>(Value));
	return End;
}

int64 FEnumProperty::GetValue(const void* Value) const
{
	switch (GetSize())
	{
	case 1: return *static_cast<const uint8*>(Value);
	case 2: return *static_cast<const int16*>(Value);
	case 4: return *static_cast<const int32*>(Value);
	default: return *static_cast<const int64*>(Value);
	}
}

void FEnumProperty::SetValue(void* Value, int64 NewValue) const
{
	switch (GetSize())
	{
	case 1: *static_cast<uint8*>(Value) = static_cast<uint8>(NewValue); break;
	case 2: *static_cast<int16*>(Value) = static_cast<int16>(NewValue); break;
	case 4: *static_cast<int32*>(Value) = static_cast<int32>(NewValue); break;
	default: *static_cast<int64*>(Value) = NewValue;
	}
}

void FEnumProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32) const
{
	ValueStr += ExportEnum(Enum, GetValue(PropertyValue));
}

const TCHAR* FEnumProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32) const
{
	int64 Value = 0;
	const TCHAR* const End = ImportEnum(Enum, GetSize(), Buffer, Value);
	if (End)
	{
		SetValue(PropertyValue, Value);
	}
	return End;
}
