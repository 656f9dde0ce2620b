#include "UObject/SoftObjectPath.h"

#include "ObjectText.h"
#include "PropertyText.h"
#include "UObject/UObjectGlobals.h"

FSoftObjectPath::FSoftObjectPath(const UObject* Object)
{
	if (Object)
	{
		SetPath(Object->GetPathName());
	}
}

void FSoftObjectPath::SetPath(const FString& Path)
{
	Reset();
	FString Rest = ObjectText::GetReferencedPath(Path);
	int32 At = INDEX_NONE;
	if (Rest.FindChar(':', At))
	{
		SubPath = Rest.Mid(At + 1);
		Rest.LeftInline(At);
	}
	FName AssetName;
	if (Rest.FindChar('.', At))
	{
		AssetName = FName(Rest.Mid(At + 1));
		Rest.LeftInline(At);
	}
	AssetPath = FTopLevelAssetPath(FName(Rest), AssetName);
}

FString FSoftObjectPath::ToString() const
{
	return SubPath.IsEmpty() ? GetAssetPathString() : GetAssetPathString() + TEXT(":") + SubPath;
}

UObject* FSoftObjectPath::ResolveObject() const
{
	return IsNull() ? nullptr : StaticFindObject(UObject::StaticClass(), nullptr, *ToString());
}

UObject* FSoftObjectPath::TryLoad() const
{
	UObject* const Found = ResolveObject();
	return Found || IsNull() ? Found : StaticLoadObject(UObject::StaticClass(), nullptr, *ToString());
}

bool FSoftObjectPath::ExportTextItem(FString& ValueStr, const FSoftObjectPath&, UObject*, int32 PortFlags, UObject*) const
{
	PropertyText::ExportPath(ValueStr, IsNull() ? FString() : ToString(), PortFlags);
	return true;
}

bool FSoftObjectPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject*, FOutputDevice*)
{
	FString Text;
	const TCHAR* const End = PropertyText::ImportString(Buffer, Text, PortFlags);
	if (!End)
	{
		return false;
	}
	SetPath(Text);
	Buffer = End;
	return true;
}

UClass* FSoftClassPath::ResolveClass() const
{
	return Cast<UClass>(ResolveObject());
}

UClass* FSoftClassPath::LoadClassOf(const UClass* Base) const
{
	UClass* const Class = Cast<UClass>(TryLoad());
	return Class && Class->IsChildOf(Base) ? Class : nullptr;
}
