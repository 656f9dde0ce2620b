#include "UObject/EnumProperty.h"

#include "EnumValue.h"

IMPLEMENT_FIELD(FEnumProperty)

void FEnumProperty::AddCppProperty(FProperty* Property)
{
	check(!UnderlyingProp);
	UnderlyingProp = CastFieldChecked<FNumericProperty>(Property);
	Link();
}

void FEnumProperty::Link()
{
	SetLayout(UnderlyingProp->GetElementSize(), UnderlyingProp->GetMinAlignment());
}

FString FEnumProperty::MakeTypeTag() const
{
	return FString::Printf(TEXT("EnumProperty<%s>"), *Enum->GetName());
}

void FEnumProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeObjectReference(Ar, Enum);
	FProperty* Underlying = UnderlyingProp;
	SerializeField(Ar, Underlying, this);
	UnderlyingProp = CastField<FNumericProperty>(Underlying);
	if (!UnderlyingProp || !UnderlyingProp->IsInteger())
	{
		delete Underlying;
		UnderlyingProp = nullptr;
		Ar.SetError();
		return;
	}
	Link();
}

void FEnumProperty::SerializeItem(FArchive& Ar, void* Value, const void*) const
{
	int64 Number = UnderlyingProp->GetSignedIntPropertyValue(Value);
	EnumValue::Serialize(Ar, Enum, Number);
	UnderlyingProp->SetIntPropertyValue(Value, Number);
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += EnumValue::Export(Enum, UnderlyingProp->GetSignedIntPropertyValue(Value));
}

const TCHAR* FEnumProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32) const
{
	int64 Number = 0;
	const TCHAR* const End = EnumValue::Import(Enum, Buffer, Number);
	if (!End || !UnderlyingProp->CanHoldValue(Number))
	{
		return nullptr;
	}
	UnderlyingProp->SetIntPropertyValue(Value, Number);
	return End;
}
