#include "UObject/ArrayProperty.h"

#include "PropertyText.h"

IMPLEMENT_FIELD(FArrayProperty)

FString FArrayProperty::GetCPPType() const
{
	return TEXT("TArray<") + Inner->GetCPPType() + TEXT(">");
}

FString FArrayProperty::MakeTypeTag() const
{
	return FString::Printf(TEXT("ArrayProperty<%s>"), *Inner->GetTypeTag().ToString());
}

void FArrayProperty::DestroySingleValue(void* Dest) const
{
	FScriptArrayHelper(this, Dest).EmptyValues();
}

void FArrayProperty::CopySingleValue(void* Dest, const void* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	const FScriptArrayHelper From(this, Src);
	FScriptArrayHelper To(this, Dest);
	To.Resize(From.Num());
	for (int32 Index = 0; Index < From.Num(); ++Index)
	{
		Inner->CopySingleValue(To.GetRawPtr(Index), From.GetRawPtr(Index));
	}
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptArrayHelper One(this, A);
	if (!B)
	{
		return One.Num() == 0;
	}
	const FScriptArrayHelper Other(this, B);
	if (One.Num() != Other.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < One.Num(); ++Index)
	{
		if (!Inner->Identical(One.GetRawPtr(Index), Other.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeField(Ar, Inner, this);
}

void FArrayProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	FScriptArrayHelper Elements(this, Value);
	int32 Count = Elements.Num();
	if (!Ar.IsObjectReferenceCollector())
	{
		SerializeCount(Ar, Count);
	}
	if (Ar.IsLoading())
	{
		Elements.EmptyValues();
	}
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		if (Index == Elements.Num())
		{
			// A damaged number costs no more memory than the bytes that are there can fill.
			Elements.Resize(FMath::Min(Count, 2 * Index + 64));
		}
		Inner->SerializeItem(Ar, Elements.GetRawPtr(Index));
	}
}

void FArrayProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptArrayHelper Elements(this, Value);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		Inner->ExportTextItem_Direct(ValueStr, Elements.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FArrayProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const
{
	FScriptArrayHelper Elements(this, Value);
	if (*Buffer == '(')
	{
		Elements.EmptyValues();
	}
	return PropertyText::ReadList(Buffer,
		[&](const TCHAR* Item)
		{
		const int32 Index = Elements.AddValue();
		return Inner->ImportText_Direct(Item, Elements.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited, nullptr);
	});
}

int32 FScriptArrayHelper::AddValue()
{
	Resize(Num() + 1);
	return Num() - 1;
}

void FScriptArrayHelper::InsertValues(int32 Index, int32 Count)
{
	check(Index >= 0 && Index <= Num());
	const int32 Old = Num();
	Resize(Old + Count);
	for (int32 From = Old - 1; From >= Index; --From)
	{
		Inner->CopySingleValue(GetRawPtr(From + Count), GetRawPtr(From));
	}
	for (int32 New = Index; New < FMath::Min(Index + Count, Old); ++New)
	{
		Inner->ClearValue(GetRawPtr(New));
	}
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	check(Index >= 0 && Count >= 0 && Index + Count <= Num());
	for (int32 From = Index + Count; From < Num(); ++From)
	{
		Inner->CopySingleValue(GetRawPtr(From - Count), GetRawPtr(From));
	}
	Resize(Num() - Count);
}

void FScriptArrayHelper::EmptyValues()
{
	Resize(0);
	Reallocate(0);
}

void FScriptArrayHelper::Resize(int32 Count)
{
	if (Count > Array->Max())
	{
		Reallocate(FMath::Max(Count, Array->Max() + Array->Max() / 2 + 4));
	}
	const int32 Old = Num();
	for (int32 Index = Count; Index < Old; ++Index)
	{
		Inner->DestroyValue(GetRawPtr(Index));
	}
	for (int32 Index = Old; Index < Count; ++Index)
	{
		Inner->InitializeValue(GetRawPtr(Index));
	}
	Array->SetNumUnsafe(Count);
}

void FScriptArrayHelper::Reallocate(int32 Count)
{
	if (Array->Max() == Count)
	{
		return;
	}
	const int32 Size = Inner->GetElementSize();
	FScriptArray Larger;
	Larger.Reallocate(Count, Size, Inner->GetMinAlignment());
	for (int32 Index = 0; Index < Num(); ++Index)
	{
		uint8* const Target = static_cast<uint8*>(Larger.GetData()) + Index * Size;
		Inner->InitializeValue(Target);
		Inner->CopyCompleteValue(Target, GetRawPtr(Index));
		Inner->DestroyValue(GetRawPtr(Index));
	}
	Larger.SetNumUnsafe(Num());
	Swap(*Array, Larger);
	Larger.SetNumUnsafe(0);
	Larger.Reallocate(0, Size, Inner->GetMinAlignment());
}
