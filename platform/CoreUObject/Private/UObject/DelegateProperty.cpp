#include "UObject/DelegateProperty.h"

#include "PropertyText.h"
#include "UObject/UObjectGlobals.h"

IMPLEMENT_FIELD(FDelegateProperty)
IMPLEMENT_ABSTRACT_FIELD(FMulticastDelegateProperty)
IMPLEMENT_FIELD(FMulticastInlineDelegateProperty)

namespace
{
void ExportBinding(FString& ValueStr, const FScriptDelegate& Delegate)
{
	const UObject* const Object = Delegate.GetUObject();
	ValueStr += (Object ? Object->GetPathName() : FString(TEXT("(null)"))) + TEXT(".") + Delegate.GetFunctionName().ToString();
}

/** @return behind the binding; null when the object is not in memory or has no such function */
const TCHAR* ImportBinding(const TCHAR* Buffer, FScriptDelegate& OutDelegate)
{
	static constexpr std::u16string_view Unbound = TEXT("(null).None");
	OutDelegate.Unbind();
	if (PropertyText::StartsWith(Buffer, Unbound))
	{
		return Buffer + Unbound.size();
	}
	FString Text;
	FString Path;
	FString Function;
	const TCHAR* const End = PropertyText::ReadDelimited(Buffer, Text);
	if (!End || !Text.Split(TEXT("."), &Path, &Function, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
	{
		return nullptr;
	}
	OutDelegate.BindUFunction(StaticFindObject(UObject::StaticClass(), nullptr, *Path), FName(Function));
	return OutDelegate.IsBound() ? End : nullptr;
}
}

void FDelegateProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeObjectReference(Ar, SignatureFunction);
}

void FDelegateProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	static_cast<FScriptDelegate*>(Value)->Serialize(Ar);
}

void FDelegateProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ExportBinding(ValueStr, GetPropertyValue(Value));
}

const TCHAR* FDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	return ImportBinding(Buffer, *static_cast<FScriptDelegate*>(Value));
}

void FMulticastDelegateProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeObjectReference(Ar, SignatureFunction);
}

void FMulticastInlineDelegateProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	static_cast<FMulticastScriptDelegate*>(Value)->Serialize(Ar);
}

void FMulticastInlineDelegateProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	const TCHAR* Separator = TEXT("(");
	for (const FScriptDelegate& Each : GetPropertyValue(Value).GetInvocationList())
	{
		ValueStr += Separator;
		Separator = TEXT(",");
		ExportBinding(ValueStr, Each);
	}
	ValueStr += *Separator == '(' ? TEXT("()") : TEXT(")");
}

const TCHAR* FMulticastInlineDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	FMulticastScriptDelegate& Delegate = *static_cast<FMulticastScriptDelegate*>(Value);
	Delegate.Clear();
	return PropertyText::ReadList(Buffer,
		[&](const TCHAR* Item)
		{
		FScriptDelegate Binding;
		Item = ImportBinding(Item, Binding);
		if (Item && Binding.GetUObject())
		{
			Delegate.Add(Binding);
		}
		return Item;
	});
}
