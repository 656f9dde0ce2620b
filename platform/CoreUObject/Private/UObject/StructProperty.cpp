#include "UObject/StructProperty.h"

#include "PropertyText.h"
#include "UObject/FieldIterator.h"

#include <memory>

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (B)
	{
		return Struct->CompareScriptStruct(A, B, PortFlags);
	}
	const std::unique_ptr<uint8[]> Empty = std::make_unique<uint8[]>(static_cast<SIZE_T>(GetSize()));
	InitializeValue(Empty.get());
	const bool bSame = Struct->CompareScriptStruct(A, Empty.get(), PortFlags);
	DestroyValue(Empty.get());
	return bSame;
}

void FStructProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const
{
	const TCHAR* Separator = TEXT("(");
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		if (DefaultValue && Member->Identical_InContainer(PropertyValue, DefaultValue, PortFlags))
		{
			continue;
		}
		ValueStr += Separator + Member->GetName() + TEXT("=");
		Separator = TEXT(",");
		Member->ExportTextItem_Direct(ValueStr, Member->ContainerPtrToValuePtr<void>(PropertyValue),
			DefaultValue ? Member->ContainerPtrToValuePtr<void>(DefaultValue) : nullptr, Parent, PortFlags | PPF_Delimited);
	}
	ValueStr += *Separator == '(' ? TEXT("()") : TEXT(")");
}

const TCHAR* FStructProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const
{
	if (*Buffer != '(')
	{
		return nullptr;
	}
	Buffer = PropertyText::SkipBlanks(Buffer + 1);
	while (*Buffer != ')')
	{
		const TCHAR* const NameBegin = Buffer;
		while (FChar::IsAlnum(*Buffer) || *Buffer == '_')
		{
			++Buffer;
		}
		const FName Name(FString(static_cast<int32>(Buffer - NameBegin), NameBegin));
		Buffer = PropertyText::SkipBlanks(Buffer);
		if (*Buffer != '=' || Name.IsNone())
		{
			return nullptr;
		}
		Buffer = PropertyText::SkipBlanks(Buffer + 1);
		// A member that the struct no longer has is passed over.
		const FProperty* const Member = Struct->FindPropertyByName(Name);
		Buffer = Member
			? Member->ImportText_Direct(Buffer, Member->ContainerPtrToValuePtr<void>(PropertyValue), Owner, PortFlags | PPF_Delimited)
			: PropertyText::SkipValue(Buffer);
		Buffer = Buffer ? PropertyText::SkipBlanks(Buffer) : nullptr;
		if (!Buffer || (*Buffer != ',' && *Buffer != ')'))
		{
			return nullptr;
		}
		Buffer = *Buffer == ',' ? PropertyText::SkipBlanks(Buffer + 1) : Buffer;
	}
	return Buffer + 1;
}

void FStructProperty::VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const
{
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		Member->VisitReferences(Member->ContainerPtrToValuePtr<void>(Value), Visit);
	}
}

bool FStructProperty::ContainsObjectReference() const
{
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		if (Member->ContainsObjectReference())
		{
			return true;
		}
	}
	return false;
}
