#include "UObject/StructProperty.h"

#include "PropertyText.h"
#include "UObject/FieldIterator.h"
#include "UObject/GeneratedCode.h"

#include <memory>

IMPLEMENT_FIELD(FStructProperty)

namespace
{
/** Files that go deeper are damaged. */
constexpr int32 MaxDepth = 500;

/** Deprecated members, and transient ones unless they are asked for, are not written. */
bool ShouldPort(const FProperty* Member, int32 PortFlags)
{
	return !Member->HasAnyPropertyFlags(CPF_Deprecated | (PortFlags & PPF_IncludeTransient ? CPF_None : CPF_Transient));
}

/** Name, or Name[Index] and Name(Index) of an array of fixed size. @return behind it, or null */
const TCHAR* ReadMemberName(const TCHAR* Buffer, FName& OutName, int32& OutIndex)
{
	const TCHAR* End = Buffer;
	while (FChar::IsAlnum(*End) || *End == '_')
	{
		++End;
	}
	OutName = FName(FString(static_cast<int32>(End - Buffer), Buffer));
	OutIndex = 0;
	if (*End != '[' && *End != '(')
	{
		return End;
	}
	const TCHAR Close = *End == '[' ? ']' : ')';
	const TCHAR* const Digits = ++End;
	while (FChar::IsDigit(*End))
	{
		++End;
	}
	const bool bNumber = PropertyText::ParseNumber(FString(static_cast<int32>(End - Digits), Digits), OutIndex);
	return bNumber && *End == Close ? End + 1 : nullptr;
}
}

void FStructProperty::Link()
{
	SetLayout(Struct->GetStructureSize(), Struct->GetMinAlignment());
}

FString FStructProperty::MakeTypeTag() const
{
	return FString::Printf(TEXT("StructProperty<%s>"), *Struct->GetName());
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (B)
	{
		return Struct->CompareScriptStruct(A, B, PortFlags);
	}
	const std::unique_ptr<uint8[]> Empty = std::make_unique<uint8[]>(static_cast<SIZE_T>(GetElementSize()));
	InitializeSingleValue(Empty.get());
	const bool bSame = Struct->CompareScriptStruct(A, Empty.get(), PortFlags);
	DestroySingleValue(Empty.get());
	return bSame;
}

bool FStructProperty::CanBeKey() const
{
	if (Struct->Ops)
	{
		return Struct->Ops->Hash != nullptr;
	}
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		if (!Member->CanBeKey())
		{
			return false;
		}
	}
	return true;
}

uint32 FStructProperty::GetValueTypeHash(const void* Value) const
{
	if (Struct->Ops)
	{
		return Struct->Ops->Hash(Value);
	}
	uint32 Hash = 0;
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		Hash = HashCombine(Hash, Member->GetValueTypeHash(Member->ContainerPtrToValuePtr<void>(Value)));
	}
	return Hash;
}

bool FStructProperty::IsSameKey(const void* A, const void* B) const
{
	if (Struct->Ops)
	{
		return Struct->Ops->Equal ? Struct->Ops->Equal(A, B) : Identical(A, B);
	}
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		if (!Member->IsSameKey(Member->ContainerPtrToValuePtr<void>(A), Member->ContainerPtrToValuePtr<void>(B)))
		{
			return false;
		}
	}
	return true;
}

void FStructProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeObjectReference(Ar, Struct);
	if (Ar.IsLoading() && Struct)
	{
		Link();
	}
}

void FStructProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	static thread_local int32 Depth = 0;
	const TGuardValue Guard(Depth, Depth + 1);
	if (Depth > MaxDepth)
	{
		Ar.SetError();
	}
	else if (Struct->Ops && Struct->Ops->Serialize && Struct->Ops->Serialize(Ar, Value))
	{
		return;
	}
	else if (Ar.IsObjectReferenceCollector())
	{
		Struct->SerializeReferences(Ar, Value);
	}
	else
	{
		Struct->SerializeTaggedProperties(Ar, Value, Struct, Defaults);
	}
}

bool FStructProperty::ContainsObjectReference(TArray<const UStruct*>& Encountered) const
{
	if (Struct->Ops && Struct->Ops->bSerializesReferences)
	{
		return true;
	}
	if (Encountered.Contains(Struct))
	{
		return false;
	}
	Encountered.Add(Struct);
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		if (Member->ContainsObjectReference(Encountered))
		{
			return true;
		}
	}
	return false;
}

void FStructProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Struct->Ops && Struct->Ops->ExportText &&
		Struct->Ops->ExportText(ValueStr, Value, DefaultValue ? DefaultValue : Value, Parent, PortFlags, ExportRootScope))
	{
		return;
	}
	const int32 Begin = ValueStr.Len();
	for (TFieldIterator<FProperty> Member(Struct); Member; ++Member)
	{
		for (int32 Index = 0; ShouldPort(*Member, PortFlags) && Index < Member->ArrayDim; ++Index)
		{
			const int32 Before = ValueStr.Len();
			ValueStr += Before == Begin ? TEXT("(") : TEXT(",");
			ValueStr += Member->GetName();
			ValueStr += Member->ArrayDim > 1 ? FString::Printf(TEXT("[%d]="), Index) : FString(TEXT("="));
			if (!Member->ExportText_InContainer(Index, ValueStr, Value, DefaultValue, Parent, PortFlags | PPF_Delimited, ExportRootScope))
			{
				ValueStr.LeftInline(Before);
			}
		}
	}
	ValueStr += ValueStr.Len() == Begin ? TEXT("()") : TEXT(")");
}

const TCHAR* FStructProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const
{
	if (Struct->Ops && Struct->Ops->ImportText && Struct->Ops->ImportText(Buffer, Value, PortFlags, OwnerObject, nullptr))
	{
		return Buffer;
	}
	return PropertyText::ReadList(Buffer,
		[&](const TCHAR* Item) -> const TCHAR*
		{
		FName Name;
		int32 Index = 0;
		Item = ReadMemberName(Item, Name, Index);
		Item = Item ? PropertyText::SkipBlanks(Item) : nullptr;
		if (!Item || *Item != '=' || Name.IsNone())
		{
			return nullptr;
		}
		Item = PropertyText::SkipBlanks(Item + 1);
		const FProperty* const Member = Struct->FindPropertyByName(Name);
		if (!Member || Index >= Member->ArrayDim)
		{
			// A member that the struct no longer has.
			return PropertyText::SkipValue(Item);
		}
		return Member->ImportText_Direct(
			Item, Member->ContainerPtrToValuePtr<void>(Value, Index), OwnerObject, PortFlags | PPF_Delimited, nullptr);
	});
}
