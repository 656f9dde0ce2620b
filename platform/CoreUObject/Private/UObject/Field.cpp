#include "UObject/Field.h"

#include "UObject/Class.h"

namespace
{
/** "bKeepLast30Days" becomes "Keep Last 30 Days": a word begins at a capital or a digit behind another kind of letter. */
FString NameToDisplayString(const FString& Name, bool bIsBool)
{
	const int32 Begin = bIsBool && Name.Len() > 1 && Name[0] == 'b' && FChar::IsUpper(Name[1]) ? 1 : 0;
	FString Result;
	for (int32 Index = Begin; Index < Name.Len(); ++Index)
	{
		const TCHAR Current = Name[Index];
		const TCHAR Last = Index > Begin ? Name[Index - 1] : u'_';
		const bool bCapital = FChar::IsUpper(Current) && !FChar::IsUpper(Last);
		const bool bNumber = FChar::IsDigit(Current) && !FChar::IsDigit(Last);
		if (Last != '_' && (Current == '_' || bCapital || bNumber))
		{
			Result += TCHAR(' ');
		}
		if (Current != '_')
		{
			Result += Result.IsEmpty() ? FChar::ToUpper(Current) : Current;
		}
	}
	return Result;
}
}

const FString& FFieldMetaData::Get(const FName& Key) const
{
	static const FString Empty;
	const FString* const Found = Values.Find(Key);
	return Found ? *Found : Empty;
}

FText FFieldMetaData::GetDisplayName(const FString& Name, bool bIsBool) const
{
	const FString& Given = Get(TEXT("DisplayName"));
	return FText::FromString(Given.IsEmpty() ? NameToDisplayString(Name, bIsBool) : Given);
}

FText FFieldMetaData::GetToolTip(const FString& Name, bool bIsBool) const
{
	const FString& Given = Get(TEXT("ToolTip"));
	return Given.IsEmpty() ? GetDisplayName(Name, bIsBool) : FText::FromString(Given);
}

UClass* FField::GetOwnerClass() const
{
	return OwnerStruct && OwnerStruct->IsA(UClass::StaticClass()) ? static_cast<UClass*>(OwnerStruct) : nullptr;
}

FText FField::GetToolTipText(bool) const
{
	return MetaData.GetToolTip(GetName(), IsBool());
}
