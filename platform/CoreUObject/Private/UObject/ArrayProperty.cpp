#include "PropertyText.h"
#include "UObject/StructProperty.h"

FString FArrayProperty::GetCPPType() const
{
	return TEXT("TArray<") + Inner->GetCPPType() + TEXT(">");
}

void FArrayProperty::DestroyValue(void* Dest) const
{
	FScriptArrayHelper(this, Dest).EmptyValues();
}

void FArrayProperty::CopyCompleteValue(void* Dest, const void* Src) const
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
		Inner->CopyCompleteValue(To.GetRawPtr(Index), From.GetRawPtr(Index));
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

void FArrayProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject* Parent, uint32 PortFlags) const
{
	const FScriptArrayHelper Elements(this, PropertyValue);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		Inner->ExportTextItem_Direct(ValueStr, Elements.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FArrayProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const
{
	if (*Buffer != '(')
	{
		return nullptr;
	}
	FScriptArrayHelper Elements(this, PropertyValue);
	Elements.EmptyValues();
	Buffer = PropertyText::SkipBlanks(Buffer + 1);
	while (*Buffer != ')')
	{
		const int32 Index = Elements.AddValue();
		Buffer = Inner->ImportText_Direct(Buffer, Elements.GetRawPtr(Index), Owner, PortFlags | PPF_Delimited);
		Buffer = Buffer ? PropertyText::SkipBlanks(Buffer) : nullptr;
		if (!Buffer || (*Buffer != ',' && *Buffer != ')'))
		{
			return nullptr;
		}
		Buffer = *Buffer == ',' ? PropertyText::SkipBlanks(Buffer + 1) : Buffer;
	}
	return Buffer + 1;
}

void FArrayProperty::VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const
{
	const FScriptArrayHelper Elements(this, Value);
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Inner->VisitReferences(Elements.GetRawPtr(Index), Visit);
	}
}

int32 FScriptArrayHelper::AddValue()
{
	Resize(Num() + 1);
	return Num() - 1;
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
	FScriptArray Larger;
	Larger.Reallocate(Count, Inner->GetSize(), Inner->GetMinAlignment());
	for (int32 Index = 0; Index < Num(); ++Index)
	{
		uint8* const Target = static_cast<uint8*>(Larger.GetData()) + Index * Inner->GetSize();
		Inner->InitializeValue(Target);
		Inner->CopyCompleteValue(Target, GetRawPtr(Index));
		Inner->DestroyValue(GetRawPtr(Index));
	}
	Larger.SetNumUnsafe(Num());
	Swap(*Array, Larger);
	Larger.SetNumUnsafe(0);
	Larger.Reallocate(0, Inner->GetSize(), Inner->GetMinAlignment());
}
