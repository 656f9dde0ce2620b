#pragma once

#include "UObject/NumericProperty.h"

/** An enum class of 1, 2, 4 or 8 bytes. As saved, a value is its name. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty)

	using FProperty::FProperty;
	~FEnumProperty() override { delete UnderlyingProp; }

	UEnum* GetEnum() const { return Enum; }
	void SetEnum(UEnum* InEnum) { Enum = InEnum; }
	/** The number that the values are kept as. */
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }
	/** Takes over the number that the values are kept as, and its size. */
	void AddCppProperty(FProperty* Property);

	void Link() override;
	bool HasType() const override { return Enum && UnderlyingProp; }
	FString GetCPPType() const override { return Enum->CppType; }
	void CopySingleValue(void* Dest, const void* Src) const override { UnderlyingProp->CopySingleValue(Dest, Src); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override { return UnderlyingProp->Identical(A, B); }
	bool CanBeKey() const override { return true; }
	uint32 GetValueTypeHash(const void* Value) const override { return UnderlyingProp->GetValueTypeHash(Value); }
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	FString MakeTypeTag() const override;
	void InitializeSingleValue(void* Dest) const override { UnderlyingProp->InitializeValue(Dest); }
	void DestroySingleValue(void*) const override {}
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;

private:
	UEnum* Enum = nullptr;
	FNumericProperty* UnderlyingProp = nullptr;
};
