#pragma once

#include "UObject/SetProperty.h"

/** A TMap: ((k, v),(k2, v2)) as text. */
class COREUOBJECT_API FMapProperty : public FProperty
{
	DECLARE_FIELD(FMapProperty, FProperty)

	FMapProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: FProperty(InOwner, InName, InFlags)
	{
		SetLayout(sizeof(FScriptSet), alignof(FScriptSet));
	}
	~FMapProperty() override;

	void Link() override;
	bool HasType() const override { return KeyProp && ValueProp && KeyProp->CanBeKey(); }
	FString GetCPPType() const override;
	void CopySingleValue(void* Dest, const void* Src) const override;
	/** The order does not count. */
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	using FProperty::ContainsObjectReference;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override
	{
		return KeyProp->ContainsObjectReference(Encountered) || ValueProp->ContainsObjectReference(Encountered);
	}

	/** Key and value; owned, and their offsets are 0. */
	FProperty* KeyProp = nullptr;
	FProperty* ValueProp = nullptr;

protected:
	FString MakeTypeTag() const override;
	void InitializeSingleValue(void* Dest) const override { new (Dest) FScriptSet(); }
	void DestroySingleValue(void* Dest) const override;
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A map value's pairs. */
class COREUOBJECT_API FScriptMapHelper : public FScriptHashedHelper
{
public:
	FScriptMapHelper(const FMapProperty* Property, const void* InMap)
		: FScriptHashedHelper(Property->KeyProp, Property->ValueProp, InMap)
		, ValueProp(Property->ValueProp)
	{
	}

	/** Replaces the value when the key is there. */
	void AddPair(const void* Key, const void* Value) { ValueProp->CopyCompleteValue(GetValuePtr(FindOrAdd(Key)), Value); }
	/** Null when the key is not there. */
	uint8* FindValueFromKey(const void* Key) const
	{
		const int32 Index = FindIndex(Key);
		return Index == INDEX_NONE ? nullptr : GetValuePtr(Index);
	}
	void EmptyValues() { EmptyElements(); }

private:
	const FProperty* ValueProp;
};
