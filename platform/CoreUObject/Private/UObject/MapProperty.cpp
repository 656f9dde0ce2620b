#include "UObject/MapProperty.h"

#include "HashedValues.h"
#include "PropertyText.h"
#include "ScratchValue.h"

IMPLEMENT_FIELD(FMapProperty)

FMapProperty::~FMapProperty()
{
	delete KeyProp;
	delete ValueProp;
}

void FMapProperty::Link()
{
	KeyProp->Link();
	ValueProp->Link();
}

FString FMapProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TMap<%s,%s>"), *KeyProp->GetCPPType(), *ValueProp->GetCPPType());
}

FString FMapProperty::MakeTypeTag() const
{
	return FString::Printf(TEXT("MapProperty<%s,%s>"), *KeyProp->GetTypeTag().ToString(), *ValueProp->GetTypeTag().ToString());
}

void FMapProperty::DestroySingleValue(void* Dest) const
{
	FScriptMapHelper(this, Dest).EmptyValues();
	static_cast<FScriptSet*>(Dest)->~FScriptSet();
}

void FMapProperty::CopySingleValue(void* Dest, const void* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	FScriptMapHelper To(this, Dest);
	CopyElements(FScriptMapHelper(this, Src), To, ValueProp);
}

bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptMapHelper One(this, A);
	return B ? HaveIdenticalElements(One, FScriptMapHelper(this, B), *KeyProp, ValueProp, PortFlags) : One.Num() == 0;
}

void FMapProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeField(Ar, KeyProp, this);
	SerializeField(Ar, ValueProp, this);
}

void FMapProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	FScriptMapHelper Pairs(this, Value);
	int32 Count = Pairs.Num();
	if (!Ar.IsObjectReferenceCollector())
	{
		SerializeCount(Ar, Count);
	}
	if (Ar.IsLoading())
	{
		Pairs.EmptyValues();
		for (; Count > 0 && !Ar.IsError(); --Count)
		{
			const FScratchValue Key(KeyProp);
			KeyProp->SerializeItem(Ar, Key.Get());
			ValueProp->SerializeItem(Ar, Pairs.GetValuePtr(Pairs.FindOrAdd(Key.Get())));
		}
		return;
	}
	for (int32 Index = 0; Index < Pairs.GetMaxIndex(); ++Index)
	{
		if (Pairs.IsValidIndex(Index))
		{
			KeyProp->SerializeItem(Ar, Pairs.GetKeyPtr(Index));
			ValueProp->SerializeItem(Ar, Pairs.GetValuePtr(Index));
		}
	}
	if (Ar.IsObjectReferenceCollector() && KeyProp->ContainsObjectReference())
	{
		Pairs.RehashIfNeeded();
	}
}

void FMapProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptMapHelper Pairs(this, Value);
	const TCHAR* Separator = TEXT("((");
	for (int32 Index = 0; Index < Pairs.GetMaxIndex(); ++Index)
	{
		if (!Pairs.IsValidIndex(Index))
		{
			continue;
		}
		ValueStr += Separator;
		Separator = TEXT(",(");
		KeyProp->ExportTextItem_Direct(ValueStr, Pairs.GetKeyPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(", ");
		ValueProp->ExportTextItem_Direct(ValueStr, Pairs.GetValuePtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(")");
	}
	ValueStr += Pairs.Num() == 0 ? TEXT("()") : TEXT(")");
}

const TCHAR* FMapProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const
{
	FScriptMapHelper Pairs(this, Value);
	if (*Buffer == '(')
	{
		Pairs.EmptyValues();
	}
	const int32 Flags = PortFlags | PPF_Delimited;
	return PropertyText::ReadList(Buffer,
		[&](const TCHAR* Item) -> const TCHAR*
		{
		const FScratchValue Key(KeyProp);
		if (*Item != '(')
		{
			return nullptr;
		}
		Item = KeyProp->ImportText_Direct(PropertyText::SkipBlanks(Item + 1), Key.Get(), OwnerObject, Flags, nullptr);
		Item = Item ? PropertyText::SkipBlanks(Item) : nullptr;
		if (!Item || *Item != ',')
		{
			return nullptr;
		}
		uint8* const Mapped = Pairs.GetValuePtr(Pairs.FindOrAdd(Key.Get()));
		Item = ValueProp->ImportText_Direct(PropertyText::SkipBlanks(Item + 1), Mapped, OwnerObject, Flags, nullptr);
		Item = Item ? PropertyText::SkipBlanks(Item) : nullptr;
		return Item && *Item == ')' ? Item + 1 : nullptr;
	});
}
