#include "UObject/ObjectProperty.h"

#include "ObjectText.h"
#include "PropertyText.h"
#include "Templates/Casts.h"
#include "UObject/Interface.h"

IMPLEMENT_ABSTRACT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)
IMPLEMENT_FIELD(FWeakObjectProperty)
IMPLEMENT_FIELD(FSoftObjectProperty)
IMPLEMENT_FIELD(FSoftClassProperty)
IMPLEMENT_FIELD(FInterfaceProperty)

namespace
{
/** A class that a definition refers to: one that is gone becomes the base of all that could stand there. */
void SerializeClass(FArchive& Ar, UClass*& Class, UClass* Base)
{
	SerializeObjectReference(Ar, Class);
	Class = Class ? Class : Base;
}

/** Passes an object through the archive. @return whether the reference was read or replaced */
bool SerializeObject(FArchive& Ar, UObject*& Object)
{
	const UObject* const Old = Object;
	Ar << Object;
	return Ar.IsLoading() || Object != Old;
}

/** Collectors that do not ask for weak references are not shown any. */
bool SkipsWeakReferences(const FArchive& Ar)
{
	return Ar.IsObjectReferenceCollector() && !Ar.IsModifyingWeakAndStrongReferences();
}
}

FString FObjectPropertyBase::MakeCPPType(const TCHAR* Template, const UClass* Class) const
{
	return FString::Printf(TEXT("%s<%s%s>"), Template, Class->GetPrefixCPP(), *Class->GetName());
}

void FObjectPropertyBase::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeClass(Ar, PropertyClass, UObject::StaticClass());
}

bool FObjectPropertyBase::Accepts(const UObject* Object) const
{
	return Object->IsA(PropertyClass);
}

void FObjectPropertyBase::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	ObjectText::Export(ValueStr, GetObjectPropertyValue(Value), PortFlags);
}

const TCHAR* FObjectPropertyBase::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	UObject* Object = nullptr;
	const TCHAR* const End = ObjectText::Import(Buffer, Object);
	if (!End || (Object && !Accepts(Object)))
	{
		return nullptr;
	}
	SetObjectPropertyValue(Value, Object);
	return End;
}

void FObjectProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	UObject* Object = GetPropertyValue(Value);
	if (SerializeObject(Ar, Object))
	{
		// What comes from a file may be of any class.
		SetPropertyValue(Value, Object && !Accepts(Object) ? nullptr : Object);
	}
}

FClassProperty::FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FObjectProperty(InOwner, InName, InFlags)
{
	PropertyClass = UClass::StaticClass();
}

void FClassProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeClass(Ar, MetaClass, UObject::StaticClass());
}

bool FClassProperty::Accepts(const UObject* Object) const
{
	const UClass* const Class = Cast<UClass>(Object);
	return Class && (!MetaClass || Class->IsChildOf(MetaClass));
}

void FWeakObjectProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	UObject* Object = GetObjectPropertyValue(Value);
	if (!SkipsWeakReferences(Ar) && SerializeObject(Ar, Object))
	{
		SetObjectPropertyValue(Value, Object && !Accepts(Object) ? nullptr : Object);
	}
}

void FSoftObjectProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	if (Ar.IsObjectReferenceCollector())
	{
		return;
	}
	FSoftObjectPath Path = GetPropertyValue(Value).ToSoftObjectPath();
	Ar << Path;
	if (Ar.IsLoading())
	{
		SetPropertyValue(Value, FSoftObjectPtr(Path));
	}
}

void FSoftObjectProperty::ExportText_Internal(
	FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FSoftObjectPath& Path = GetPropertyValue(Value).ToSoftObjectPath();
	Path.ExportTextItem(ValueStr, Path, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FSoftObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const
{
	FSoftObjectPath Path;
	if (!Path.ImportTextItem(Buffer, PortFlags, OwnerObject, nullptr))
	{
		return nullptr;
	}
	SetPropertyValue(Value, FSoftObjectPtr(Path));
	return Buffer;
}

FSoftClassProperty::FSoftClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: FSoftObjectProperty(InOwner, InName, InFlags)
{
	PropertyClass = UClass::StaticClass();
}

void FSoftClassProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeClass(Ar, MetaClass, UObject::StaticClass());
}

FString FInterfaceProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TScriptInterface<I%s>"), *InterfaceClass->GetName());
}

void FInterfaceProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeClass(Ar, InterfaceClass, UInterface::StaticClass());
}

void FInterfaceProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	UObject* Object = GetPropertyValue(Value).GetObject();
	if (SerializeObject(Ar, Object))
	{
		static_cast<FScriptInterface*>(Value)->Set(Object, InterfaceClass);
	}
}

void FInterfaceProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	ObjectText::Export(ValueStr, GetPropertyValue(Value).GetObject(), PortFlags);
}

const TCHAR* FInterfaceProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	UObject* Object = nullptr;
	const TCHAR* const End = ObjectText::Import(Buffer, Object);
	return End && static_cast<FScriptInterface*>(Value)->Set(Object, InterfaceClass) ? End : nullptr;
}
