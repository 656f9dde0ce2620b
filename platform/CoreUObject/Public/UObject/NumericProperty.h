#pragma once

#include "UObject/Property.h"

/** A number of any size. The accessors take each other's kinds: what does not fit is cut as C++ does. */
class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty)

	using FProperty::FProperty;

	virtual bool IsInteger() const = 0;
	bool IsFloatingPoint() const { return !IsInteger(); }
	/** For a byte that is an enum; null for a number. */
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }

	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	/** Whether the number can be a value of the property without being cut. */
	virtual bool CanHoldValue(int64 Value) const = 0;
};

template <typename T>
class TNumericProperty : public TProperty<T, FNumericProperty>
{
public:
	using TProperty<T, FNumericProperty>::TProperty;

	bool IsInteger() const override { return std::is_integral_v<T>; }
	int64 GetSignedIntPropertyValue(const void* Data) const override { return static_cast<int64>(this->GetPropertyValue(Data)); }
	uint64 GetUnsignedIntPropertyValue(const void* Data) const override { return static_cast<uint64>(this->GetPropertyValue(Data)); }
	double GetFloatingPointPropertyValue(const void* Data) const override { return static_cast<double>(this->GetPropertyValue(Data)); }
	void SetIntPropertyValue(void* Data, int64 Value) const override { this->SetPropertyValue(Data, static_cast<T>(Value)); }
	void SetFloatingPointPropertyValue(void* Data, double Value) const override { this->SetPropertyValue(Data, static_cast<T>(Value)); }
	bool CanHoldValue(int64 Value) const override { return static_cast<int64>(static_cast<T>(Value)) == Value; }
};

#define DECLARE_NUMERIC_PROPERTY(Name, CppType)                                                                                            \
	class COREUOBJECT_API Name : public TNumericProperty<CppType>                                                                          \
	{                                                                                                                                      \
		DECLARE_FIELD(Name, FNumericProperty)                                                                                              \
		using TNumericProperty::TNumericProperty;                                                                                          \
		FString GetCPPType() const override { return TEXT(#CppType); }                                                                     \
                                                                                                                                           \
	protected:                                                                                                                             \
		void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,         \
			UObject* ExportRootScope) const override;                                                                                      \
		const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;          \
	};

DECLARE_NUMERIC_PROPERTY(FInt8Property, int8)
DECLARE_NUMERIC_PROPERTY(FInt16Property, int16)
DECLARE_NUMERIC_PROPERTY(FIntProperty, int32)
DECLARE_NUMERIC_PROPERTY(FInt64Property, int64)
DECLARE_NUMERIC_PROPERTY(FUInt16Property, uint16)
DECLARE_NUMERIC_PROPERTY(FUInt32Property, uint32)
DECLARE_NUMERIC_PROPERTY(FUInt64Property, uint64)
/** Six decimals as text. */
DECLARE_NUMERIC_PROPERTY(FFloatProperty, float)
DECLARE_NUMERIC_PROPERTY(FDoubleProperty, double)

#undef DECLARE_NUMERIC_PROPERTY

/** A uint8, or an enum of one byte in TEnumAsByte. As saved, an enum's value is its name. */
class COREUOBJECT_API FByteProperty : public TNumericProperty<uint8>
{
	DECLARE_FIELD(FByteProperty, FNumericProperty)

	using TNumericProperty::TNumericProperty;

	UEnum* GetIntPropertyEnum() const override { return Enum; }
	FString GetCPPType() const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

	/** Null for a number. */
	UEnum* Enum = nullptr;

protected:
	FString MakeTypeTag() const override;
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};
