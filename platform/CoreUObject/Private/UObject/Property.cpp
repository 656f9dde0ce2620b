#include "UObject/Property.h"

#include "UObject/UnrealType.h"

IMPLEMENT_ABSTRACT_FIELD(FProperty)

namespace
{
/** All kinds that there are properties of. */
constexpr FFieldClass* (*PropertyClasses[])() = {
	&FBoolProperty::StaticClass,
	&FInt8Property::StaticClass,
	&FInt16Property::StaticClass,
	&FIntProperty::StaticClass,
	&FInt64Property::StaticClass,
	&FByteProperty::StaticClass,
	&FUInt16Property::StaticClass,
	&FUInt32Property::StaticClass,
	&FUInt64Property::StaticClass,
	&FFloatProperty::StaticClass,
	&FDoubleProperty::StaticClass,
	&FStrProperty::StaticClass,
	&FNameProperty::StaticClass,
	&FTextProperty::StaticClass,
	&FEnumProperty::StaticClass,
	&FStructProperty::StaticClass,
	&FObjectProperty::StaticClass,
	&FClassProperty::StaticClass,
	&FWeakObjectProperty::StaticClass,
	&FSoftObjectProperty::StaticClass,
	&FSoftClassProperty::StaticClass,
	&FInterfaceProperty::StaticClass,
	&FArrayProperty::StaticClass,
	&FSetProperty::StaticClass,
	&FMapProperty::StaticClass,
	&FDelegateProperty::StaticClass,
	&FMulticastInlineDelegateProperty::StaticClass,
};

/** Far beyond what people write; texts and files that go deeper are damaged. */
constexpr int32 MaxImportDepth = 200;
constexpr int32 MaxDefinitionDepth = 16;
constexpr int32 MaxArrayDim = 1 << 20;
}

FField* FField::Construct(const FName& ClassName, FFieldVariant Owner, const FName& Name, EObjectFlags Flags)
{
	static const TMap<FName, const FFieldClass*> ByName = []
	{
		TMap<FName, const FFieldClass*> Map;
		for (FFieldClass* (*const GetClass)() : PropertyClasses)
		{
			Map.Add(GetClass()->GetFName(), GetClass());
		}
		return Map;
	}();
	const FFieldClass* const* const Class = ByName.Find(ClassName);
	return Class ? (*Class)->Construct(Owner, Name, Flags) : nullptr;
}

FName FProperty::GetTypeTag() const
{
	if (TypeTag.IsNone())
	{
		TypeTag = FName(MakeTypeTag());
	}
	return TypeTag;
}

void FProperty::InitializeValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		InitializeSingleValue(static_cast<uint8*>(Dest) + Index * ElementSize);
	}
}

void FProperty::DestroyValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		DestroySingleValue(static_cast<uint8*>(Dest) + Index * ElementSize);
	}
}

void FProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CopySingleValue(static_cast<uint8*>(Dest) + Index * ElementSize, static_cast<const uint8*>(Src) + Index * ElementSize);
	}
}

void FProperty::ClearValue(void* Data) const
{
	DestroyValue(Data);
	InitializeValue(Data);
}

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

bool FProperty::ExportText_Direct(
	FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	// Without defaults, or with the value as its own, everything is written.
	if (Delta && Delta != Data && Identical(Data, Delta, PortFlags))
	{
		return false;
	}
	ExportText_Internal(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	return true;
}

bool FProperty::ExportText_InContainer(int32 Index, FString& ValueStr, const void* Container, const void* DeltaContainer, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	return ExportText_Direct(ValueStr, ContainerPtrToValuePtr<void>(Container, Index),
		DeltaContainer ? ContainerPtrToValuePtr<void>(DeltaContainer, Index) : nullptr, Parent, PortFlags, ExportRootScope);
}

void FProperty::ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultContainer, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, ContainerPtrToValuePtr<void>(Container),
		DefaultContainer ? ContainerPtrToValuePtr<void>(DefaultContainer) : nullptr, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FProperty::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	static thread_local int32 Depth = 0;
	const TGuardValue Guard(Depth, Depth + 1);
	const TCHAR* const End = Depth <= MaxImportDepth ? ImportText_Internal(Buffer, PropertyPtr, OwnerObject, PortFlags) : nullptr;
	if (!End && ErrorText)
	{
		const FString Shown(std::u16string_view(Buffer, std::char_traits<TCHAR>::length(Buffer)).substr(0, 80));
		ErrorText->Logf(ELogVerbosity::Warning, TEXT("%s: '%s' is no %s"), *GetPathName(), *Shown, *GetCPPType());
	}
	return End;
}

void FProperty::Serialize(FArchive& Ar)
{
	FField::Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		return;
	}
	Ar << ArrayDim << PropertyFlags << RepNotifyFunc;
	if (ArrayDim < 1 || ArrayDim > MaxArrayDim)
	{
		Ar.SetError();
		ArrayDim = 1;
	}
}

bool FProperty::ContainsObjectReference() const
{
	TArray<const UStruct*> Encountered;
	return ContainsObjectReference(Encountered);
}

namespace
{
FProperty* LoadField(FArchive& Ar, FFieldVariant Owner)
{
	FName ClassName;
	Ar << ClassName;
	if (ClassName.IsNone())
	{
		return nullptr;
	}
	FName Name;
	Ar << Name;
	FProperty* const Property = CastField<FProperty>(FField::Construct(ClassName, Owner, Name));
	if (!Property)
	{
		Ar.SetError();
		return nullptr;
	}
	Property->Serialize(Ar);
	if (Owner.ToField() && Property->ArrayDim != 1)
	{
		Ar.SetError(); // a container's element is one value
	}
	if (Ar.IsError() || !Property->HasType())
	{
		delete Property;
		return nullptr;
	}
	return Property;
}
}

void SerializeField(FArchive& Ar, FProperty*& Property, FFieldVariant Owner)
{
	static thread_local int32 Depth = 0;
	const TGuardValue Guard(Depth, Depth + 1);
	if (Depth > MaxDefinitionDepth)
	{
		Ar.SetError();
		return;
	}
	if (Ar.IsLoading())
	{
		delete Property;
		Property = LoadField(Ar, Owner);
		return;
	}
	if (!Ar.IsObjectReferenceCollector())
	{
		FName ClassName = Property ? Property->GetClass()->GetFName() : FName();
		Ar << ClassName;
		if (Property)
		{
			FName Name = Property->GetFName();
			Ar << Name;
		}
	}
	if (Property)
	{
		Property->Serialize(Ar);
	}
}
