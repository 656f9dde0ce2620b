#include "Serialization/Archive.h"
#include "UObject/Class.h"

int32 UEnum::GetIndexByValue(int64 Value) const
{
	return Names.IndexOfByPredicate([Value](const TPair<FName, int64>& Each) { return Each.Value == Value; });
}

int32 UEnum::GetIndexByNameString(const FString& Name) const
{
	FString Short;
	const bool bQualified = Name.Split(TEXT("::"), nullptr, &Short, ESearchCase::IgnoreCase, ESearchDir::FromEnd);
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (GetNameStringByIndex(Index) == (bQualified ? Short : Name) && (!bQualified || Name == CppType + TEXT("::") + Short))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int64 UEnum::GetValueByNameString(const FString& Name) const
{
	const int32 Index = GetIndexByNameString(Name);
	return Index == INDEX_NONE ? int64(INDEX_NONE) : Names[Index].Value;
}

FString UEnum::GetNameStringByIndex(int32 Index) const
{
	if (!Names.IsValidIndex(Index))
	{
		return FString();
	}
	FString Short = Names[Index].Key.ToString();
	Short.Split(TEXT("::"), nullptr, &Short, ESearchCase::IgnoreCase, ESearchDir::FromEnd);
	return Short;
}

FText UEnum::GetDisplayNameTextByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? EnumeratorMetaData[Index].GetDisplayName(GetNameStringByIndex(Index)) : FText::GetEmpty();
}

FText UEnum::GetToolTipTextByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? EnumeratorMetaData[Index].GetToolTip(GetNameStringByIndex(Index)) : FText::GetEmpty();
}

void UEnum::AddEnumerator(FName FullName, int64 Value, const FFieldMetaData& InMetaData)
{
	Names.Add({ FullName, Value });
	EnumeratorMetaData.Add(InMetaData);
}

void UEnum::RemoveAllEnumerators()
{
	Names.Empty();
	EnumeratorMetaData.Empty();
}

void UEnum::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		return;
	}
	int32 Count = NumEnums();
	Ar << CppType;
	SerializeCount(Ar, Count);
	Names.SetNum(Count);
	EnumeratorMetaData.SetNum(Count);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Ar << Names[Index].Key << Names[Index].Value << EnumeratorMetaData[Index];
	}
}
