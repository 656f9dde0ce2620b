#include "UObject/NumericProperty.h"

#include "EnumValue.h"
#include "PropertyText.h"

#include <string>

IMPLEMENT_ABSTRACT_FIELD(FNumericProperty)

namespace
{
template <typename T>
void ExportNumber(FString& ValueStr, T Number)
{
	if constexpr (std::is_integral_v<T>)
	{
		const std::string Digits = std::to_string(Number);
		ValueStr.Native().append(Digits.begin(), Digits.end());
	}
	else
	{
		ValueStr += FString::Printf(TEXT("%f"), static_cast<double>(Number));
	}
}

template <typename T>
const TCHAR* ImportNumber(const TCHAR* Buffer, void* Value)
{
	FString Word;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	return PropertyText::ParseNumber(Word, *static_cast<T*>(Value)) ? End : nullptr;
}
}

#define IMPLEMENT_NUMERIC_PROPERTY(Name)                                                                                                   \
	IMPLEMENT_FIELD(Name)                                                                                                                  \
	void Name::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const                     \
	{                                                                                                                                      \
		ExportNumber(ValueStr, GetPropertyValue(Value));                                                                                   \
	}                                                                                                                                      \
	const TCHAR* Name::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const                                        \
	{                                                                                                                                      \
		return ImportNumber<TCppType>(Buffer, Value);                                                                                      \
	}

IMPLEMENT_NUMERIC_PROPERTY(FInt8Property)
IMPLEMENT_NUMERIC_PROPERTY(FInt16Property)
IMPLEMENT_NUMERIC_PROPERTY(FIntProperty)
IMPLEMENT_NUMERIC_PROPERTY(FInt64Property)
IMPLEMENT_NUMERIC_PROPERTY(FUInt16Property)
IMPLEMENT_NUMERIC_PROPERTY(FUInt32Property)
IMPLEMENT_NUMERIC_PROPERTY(FUInt64Property)
IMPLEMENT_NUMERIC_PROPERTY(FFloatProperty)
IMPLEMENT_NUMERIC_PROPERTY(FDoubleProperty)

IMPLEMENT_FIELD(FByteProperty)

FString FByteProperty::GetCPPType() const
{
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : FString(TEXT("uint8"));
}

FString FByteProperty::MakeTypeTag() const
{
	return Enum ? FString::Printf(TEXT("ByteProperty<%s>"), *Enum->GetName()) : FString(TEXT("ByteProperty"));
}

void FByteProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeObjectReference(Ar, Enum);
}

void FByteProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (!Enum)
	{
		TNumericProperty::SerializeItem(Ar, Value, Defaults);
		return;
	}
	int64 Number = GetPropertyValue(Value);
	EnumValue::Serialize(Ar, Enum, Number);
	SetPropertyValue(Value, static_cast<uint8>(Number));
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	if (Enum)
	{
		ValueStr += EnumValue::Export(Enum, GetPropertyValue(Value));
	}
	else
	{
		ExportNumber(ValueStr, GetPropertyValue(Value));
	}
}

const TCHAR* FByteProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	int64 Number = 0;
	const TCHAR* const End = Enum ? EnumValue::Import(Enum, Buffer, Number) : ImportNumber<uint8>(Buffer, Value);
	if (!Enum)
	{
		return End;
	}
	if (!End || !CanHoldValue(Number))
	{
		return nullptr;
	}
	SetPropertyValue(Value, static_cast<uint8>(Number));
	return End;
}
