#include "ObjectText.h"

#include "PropertyText.h"
#include "UObject/UObjectGlobals.h"

namespace ObjectText
{
void Export(FString& ValueStr, const UObject* Object, int32 PortFlags)
{
	if (!Object)
	{
		ValueStr += TEXT("None");
		return;
	}
	const TCHAR* const Quote = PortFlags & PPF_Delimited ? TEXT("\"") : TEXT("");
	ValueStr += Quote + Object->GetClass()->GetPathName() + TEXT("'") + Object->GetPathName() + TEXT("'") + Quote;
}

FString GetReferencedPath(const FString& Text)
{
	if (Text == TEXT("None"))
	{
		return FString();
	}
	int32 Open = INDEX_NONE;
	if (!Text.FindChar('\'', Open) || !Text.EndsWith(TEXT("'")) || Open == Text.Len() - 1)
	{
		return Text;
	}
	FString Path = Text.Mid(Open + 1, Text.Len() - Open - 2);
	if (Path.Contains(TEXT("'")))
	{
		return Text;
	}
	Path.ReplaceInline(TEXT("\""), TEXT(""));
	return Path;
}

const TCHAR* Import(const TCHAR* Buffer, UObject*& OutObject)
{
	FString Text;
	const TCHAR* const End = PropertyText::ReadDelimited(Buffer, Text);
	if (!End)
	{
		return nullptr;
	}
	const FString Path = GetReferencedPath(Text);
	OutObject = Path.IsEmpty() ? nullptr : StaticFindObject(UObject::StaticClass(), nullptr, *Path);
	if (!OutObject && Path.StartsWith(TEXT("/")))
	{
		OutObject = StaticLoadObject(UObject::StaticClass(), nullptr, *Path, nullptr, LOAD_NoWarn | LOAD_Quiet);
	}
	return OutObject || Path.IsEmpty() ? End : nullptr;
}
}
