#include "UObject/SetProperty.h"

#include "HashedValues.h"
#include "PropertyText.h"
#include "ScratchValue.h"

IMPLEMENT_FIELD(FSetProperty)

FString FSetProperty::GetCPPType() const
{
	return TEXT("TSet<") + ElementProp->GetCPPType() + TEXT(">");
}

FString FSetProperty::MakeTypeTag() const
{
	return FString::Printf(TEXT("SetProperty<%s>"), *ElementProp->GetTypeTag().ToString());
}

void FSetProperty::DestroySingleValue(void* Dest) const
{
	FScriptSetHelper(this, Dest).EmptyElements();
	static_cast<FScriptSet*>(Dest)->~FScriptSet();
}

void FSetProperty::CopySingleValue(void* Dest, const void* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	FScriptSetHelper To(this, Dest);
	CopyElements(FScriptSetHelper(this, Src), To, nullptr);
}

bool FSetProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptSetHelper One(this, A);
	return B ? HaveIdenticalElements(One, FScriptSetHelper(this, B), *ElementProp, nullptr, PortFlags) : One.Num() == 0;
}

void FSetProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeField(Ar, ElementProp, this);
}

void FSetProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	FScriptSetHelper Elements(this, Value);
	int32 Count = Elements.Num();
	if (!Ar.IsObjectReferenceCollector())
	{
		SerializeCount(Ar, Count);
	}
	if (Ar.IsLoading())
	{
		Elements.EmptyElements();
		for (; Count > 0 && !Ar.IsError(); --Count)
		{
			const FScratchValue Element(ElementProp);
			ElementProp->SerializeItem(Ar, Element.Get());
			Elements.AddElement(Element.Get());
		}
		return;
	}
	for (int32 Index = 0; Index < Elements.GetMaxIndex(); ++Index)
	{
		if (Elements.IsValidIndex(Index))
		{
			ElementProp->SerializeItem(Ar, Elements.GetElementPtr(Index));
		}
	}
	if (Ar.IsObjectReferenceCollector() && ElementProp->ContainsObjectReference())
	{
		Elements.RehashIfNeeded();
	}
}

void FSetProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptSetHelper Elements(this, Value);
	const TCHAR* Separator = TEXT("(");
	for (int32 Index = 0; Index < Elements.GetMaxIndex(); ++Index)
	{
		if (Elements.IsValidIndex(Index))
		{
			ValueStr += Separator;
			Separator = TEXT(",");
			ElementProp->ExportTextItem_Direct(
				ValueStr, Elements.GetElementPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		}
	}
	ValueStr += *Separator == '(' ? TEXT("()") : TEXT(")");
}

const TCHAR* FSetProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const
{
	FScriptSetHelper Elements(this, Value);
	if (*Buffer == '(')
	{
		Elements.EmptyElements();
	}
	return PropertyText::ReadList(Buffer,
		[&](const TCHAR* Item)
		{
		const FScratchValue Element(ElementProp);
		Item = ElementProp->ImportText_Direct(Item, Element.Get(), OwnerObject, PortFlags | PPF_Delimited, nullptr);
		if (Item)
		{
			Elements.AddElement(Element.Get());
		}
		return Item;
	});
}
