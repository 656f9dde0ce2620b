#pragma once

#include "UObject/Property.h"

/** A uint8, or an enum of one byte in TEnumAsByte. */
class COREUOBJECT_API FByteProperty : public TProperty<uint8>
{
public:
	FByteProperty(UStruct* InOwner, FName InName, UEnum* InEnum = nullptr)
		: TProperty(InOwner, InName)
		, Enum(InEnum)
	{
	}

	/** Null for a number. */
	UEnum* GetIntPropertyEnum() const { return Enum; }
	FString GetCPPType() const override;
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;

private:
	UEnum* const Enum;
};

/** An enum of 1, 2, 4 or 8 bytes. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
public:
	FEnumProperty(UStruct* InOwner, FName InName, UEnum* InEnum, int32 Size)
		: FProperty(InOwner, InName, Size, Size)
		, Enum(InEnum)
	{
	}

	UEnum* GetEnum() const { return Enum; }
	/** The value as a number, whatever its size. */
	int64 GetValue(const void* Value) const;
	void SetValue(void* Value, int64 NewValue) const;

	FString GetCPPType() const override { return Enum->CppType; }
	void InitializeValue(void* Dest) const override { SetValue(Dest, 0); }
	void DestroyValue(void*) const override {}
	void CopyCompleteValue(void* Dest, const void* Src) const override { SetValue(Dest, GetValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override { return GetValue(A) == (B ? GetValue(B) : 0); }
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;

private:
	UEnum* const Enum;
};
