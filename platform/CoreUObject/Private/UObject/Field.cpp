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

UObject* FFieldVariant::ToUObject() const
{
	return Struct;
}

UStruct* FFieldVariant::GetOwnerStruct() const
{
	return Field ? Field->GetOwnerStruct() : Struct;
}

bool FFieldClass::IsChildOf(const FFieldClass* Other) const
{
	const FFieldClass* Class = this;
	while (Class && Class != Other)
	{
		Class = Class->SuperClass;
	}
	return Class != nullptr;
}

FField* FFieldClass::Construct(FFieldVariant Owner, const FName& FieldName, EObjectFlags Flags) const
{
	return Constructor ? Constructor(Owner, FieldName, Flags) : nullptr;
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass Class(TEXT("Field"), nullptr, nullptr);
	return &Class;
}

FString FField::GetPathName() const
{
	const FField* const Field = Owner.ToField();
	const UObject* const Object = Owner.ToUObject();
	const FString Path = Field ? Field->GetPathName() + TEXT(".") : Object ? Object->GetPathName() + TEXT(":") : FString();
	return Path + GetName();
}

UClass* FField::GetOwnerClass() const
{
	const UStruct* const Struct = GetOwnerStruct();
	return Struct ? Struct->GetOwnerClass() : nullptr;
}

FText FField::GetToolTipText(bool) const
{
	return MetaData.GetToolTip(GetName(), IsBool());
}

void FField::Serialize(FArchive& Ar)
{
	if (!Ar.IsObjectReferenceCollector())
	{
		Ar << MetaData;
	}
}
