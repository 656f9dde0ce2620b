#pragma once

#include "UObject/Property.h"

#define DECLARE_TEXT_PROPERTY(Name, CppType)                                                                                               \
	class COREUOBJECT_API Name : public TProperty<CppType>                                                                                 \
	{                                                                                                                                      \
		DECLARE_FIELD(Name, FProperty)                                                                                                     \
		using TProperty::TProperty;                                                                                                        \
		FString GetCPPType() const override { return TEXT(#CppType); }                                                                     \
                                                                                                                                           \
	protected:                                                                                                                             \
		void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,         \
			UObject* ExportRootScope) const override;                                                                                      \
		const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;          \
	};

DECLARE_TEXT_PROPERTY(FStrProperty, FString)
DECLARE_TEXT_PROPERTY(FNameProperty, FName)
/** NSLOCTEXT("ns", "key", "source") or INVTEXT("text") as text, a plain string for one without key. */
DECLARE_TEXT_PROPERTY(FTextProperty, FText)

#undef DECLARE_TEXT_PROPERTY

/** A bool, or one bit of a uint8. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty)

	FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: FProperty(InOwner, InName, InFlags)
	{
		SetLayout(1, 1);
	}

	/** A whole bool at first. @param Mask the bit that the value is, of the byte at the property's offset */
	void SetBitField(uint8 Mask) { FieldMask = Mask; }
	bool IsNativeBool() const { return FieldMask == 0xFF; }
	bool GetPropertyValue(const void* Value) const { return (*static_cast<const uint8*>(Value) & FieldMask) != 0; }
	void SetPropertyValue(void* Value, bool bNewValue) const;
	bool GetPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* Container, bool bNewValue, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), bNewValue);
	}

	FString GetCPPType() const override { return IsNativeBool() ? TEXT("bool") : TEXT("uint8"); }
	void CopySingleValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return GetPropertyValue(A) == (B && GetPropertyValue(B));
	}
	bool CanBeKey() const override { return true; }
	uint32 GetValueTypeHash(const void* Value) const override { return GetTypeHash(GetPropertyValue(Value)); }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	void InitializeSingleValue(void* Dest) const override { SetPropertyValue(Dest, false); }
	void DestroySingleValue(void*) const override {}
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;

private:
	bool IsBool() const override { return true; }

	uint8 FieldMask = 0xFF;
};
