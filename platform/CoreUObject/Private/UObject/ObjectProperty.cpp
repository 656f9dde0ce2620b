#include "UObject/ObjectProperty.h"

#include "PropertyText.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Class'Path' or Path: the path. */
FString GetReferencedPath(const FString& Text)
{
	int32 Open = INDEX_NONE;
	if (!Text.FindChar('\'', Open) || !Text.EndsWith(TEXT("'")) || Open == Text.Len() - 1)
	{
		return Text;
	}
	FString Path = Text.Mid(Open + 1, Text.Len() - Open - 2);
	Path.ReplaceInline(TEXT("\""), TEXT(""));
	return Path;
}
}

FString FObjectProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}

void FObjectProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void*, UObject*, uint32 PortFlags) const
{
	const UObject* const Object = GetObjectPropertyValue(PropertyValue);
	if (!Object)
	{
		ValueStr += TEXT("None");
		return;
	}
	const TCHAR* const Quote = PortFlags & PPF_Delimited ? TEXT("\"") : TEXT("");
	ValueStr += Quote + Object->GetClass()->GetPathName() + TEXT("'") + Object->GetPathName() + TEXT("'") + Quote;
}

const TCHAR* FObjectProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject*, uint32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = PropertyText::ReadDelimited(Buffer, Text);
	if (!End)
	{
		return nullptr;
	}
	UObject* Object = nullptr;
	if (Text != TEXT("None") && !Text.IsEmpty())
	{
		Object = StaticFindObject(UObject::StaticClass(), nullptr, *GetReferencedPath(Text));
		if (!Object || !Accepts(Object))
		{
			return nullptr;
		}
	}
	SetObjectPropertyValue(PropertyValue, Object);
	return End;
}

void FObjectProperty::VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const
{
	Visit(GetObjectPropertyValue(Value));
}

FString FClassProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TSubclassOf<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName());
}

bool FClassProperty::Accepts(const UObject* Object) const
{
	const UClass* const Class = Cast<UClass>(Object);
	return Class && Class->IsChildOf(MetaClass);
}
