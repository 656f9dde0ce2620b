#pragma once

#include "UObject/ArrayProperty.h"

/** A USTRUCT by value: (A=1,B="x") as text. Reading leaves members that are not named as they are, and passes over unknown ones. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty)

	using FProperty::FProperty;

	void Link() override;
	bool HasType() const override { return Struct != nullptr; }
	FString GetCPPType() const override { return Struct->GetStructCPPName(); }
	void CopySingleValue(void* Dest, const void* Src) const override { Struct->CopyScriptStruct(Dest, Src); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool CanBeKey() const override;
	uint32 GetValueTypeHash(const void* Value) const override;
	bool IsSameKey(const void* A, const void* B) const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	using FProperty::ContainsObjectReference;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override;

	UScriptStruct* Struct = nullptr;

protected:
	FString MakeTypeTag() const override;
	void InitializeSingleValue(void* Dest) const override { Struct->InitializeStruct(Dest); }
	void DestroySingleValue(void* Dest) const override { Struct->DestroyStruct(Dest); }
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};
