#include "EnumValue.h"

#include "PropertyText.h"

namespace EnumValue
{
FString Export(const UEnum* Enum, int64 Value)
{
	const FString Name = Enum->GetNameStringByValue(Value);
	return Name.IsEmpty() ? LexToString(Value) : Name;
}

const TCHAR* Import(const UEnum* Enum, const TCHAR* Buffer, int64& OutValue)
{
	FString Word;
	const TCHAR* const End = PropertyText::ReadWord(Buffer, Word);
	const int32 Index = Enum->GetIndexByNameString(Word);
	if (Index != INDEX_NONE)
	{
		OutValue = Enum->GetValueByIndex(Index);
		return End;
	}
	return PropertyText::ParseNumber(Word, OutValue) ? End : nullptr;
}

namespace
{
FName GetSavedName(const UEnum* Enum, int64 Value)
{
	const int32 Index = Enum->GetIndexByValue(Value);
	return Index == INDEX_NONE ? FName(LexToString(Value)) : Enum->GetNameByIndex(Index);
}

void FindSavedName(const UEnum* Enum, const FName& Name, int64& Value)
{
	for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
	{
		if (Enum->GetNameByIndex(Index) == Name)
		{
			Value = Enum->GetValueByIndex(Index);
			return;
		}
	}
	PropertyText::ParseNumber(Name.ToString(), Value);
}
}

void Serialize(FArchive& Ar, const UEnum* Enum, int64& Value)
{
	if (Ar.IsObjectReferenceCollector())
	{
		return;
	}
	FName Name = Ar.IsLoading() ? FName() : GetSavedName(Enum, Value);
	Ar << Name;
	if (Ar.IsLoading() && !Ar.IsError())
	{
		FindSavedName(Enum, Name, Value);
	}
}
}
