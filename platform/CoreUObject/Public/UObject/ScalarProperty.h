#pragma once

#include "UObject/Property.h"

/** A property whose values are written and read without regard to any other. */
#define SCALAR_PROPERTY(Name, CppType)                                                                                                     \
	class COREUOBJECT_API Name : public TProperty<CppType>                                                                                 \
	{                                                                                                                                      \
	public:                                                                                                                                \
		using TProperty::TProperty;                                                                                                        \
		FString GetCPPType() const override { return TEXT(#CppType); }                                                                     \
		void ExportTextItem_Direct(                                                                                                        \
			FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;     \
		const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;         \
	};

SCALAR_PROPERTY(FIntProperty, int32)
SCALAR_PROPERTY(FInt64Property, int64)
/** Six decimals as text. */
SCALAR_PROPERTY(FFloatProperty, float)
SCALAR_PROPERTY(FDoubleProperty, double)
SCALAR_PROPERTY(FStrProperty, FString)
SCALAR_PROPERTY(FNameProperty, FName)
/** NSLOCTEXT("ns", "key", "source") or INVTEXT("text") as text, a plain string for one without key. */
SCALAR_PROPERTY(FTextProperty, FText)

#undef SCALAR_PROPERTY

/** A bool, or one bit of a uint8. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
public:
	/** A whole bool. */
	FBoolProperty(UStruct* InOwner, FName InName)
		: FBoolProperty(InOwner, InName, 0xFF)
	{
	}
	/** The bit that Mask has, of the byte at the property's offset. */
	FBoolProperty(UStruct* InOwner, FName InName, uint8 Mask)
		: FProperty(InOwner, InName, 1, 1)
		, FieldMask(Mask)
	{
	}

	bool GetPropertyValue(const void* Value) const { return (*static_cast<const uint8*>(Value) & FieldMask) != 0; }
	void SetPropertyValue(void* Value, bool bNewValue) const;
	bool GetPropertyValue_InContainer(const void* Container) const { return GetPropertyValue(ContainerPtrToValuePtr<void>(Container)); }
	void SetPropertyValue_InContainer(void* Container, bool bNewValue) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(Container), bNewValue);
	}
	bool IsNativeBool() const { return FieldMask == 0xFF; }

	FString GetCPPType() const override { return IsNativeBool() ? TEXT("bool") : TEXT("uint8"); }
	void InitializeValue(void* Dest) const override { SetPropertyValue(Dest, false); }
	void DestroyValue(void*) const override {}
	void CopyCompleteValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;

private:
	bool IsBool() const override { return true; }

	uint8 FieldMask;
};
