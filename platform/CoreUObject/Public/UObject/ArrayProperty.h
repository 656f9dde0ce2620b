#pragma once

#include "UObject/Property.h"

/** A TArray: (a,b) as text. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty)

	FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: FProperty(InOwner, InName, InFlags)
	{
		SetLayout(sizeof(FScriptArray), alignof(FScriptArray));
	}
	~FArrayProperty() override { delete Inner; }

	void Link() override { Inner->Link(); }
	bool HasType() const override { return Inner != nullptr; }
	FString GetCPPType() const override;
	void CopySingleValue(void* Dest, const void* Src) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	using FProperty::ContainsObjectReference;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return Inner->ContainsObjectReference(Encountered); }

	/** The element; owned, and its offset is 0. */
	FProperty* Inner = nullptr;

protected:
	FString MakeTypeTag() const override;
	void InitializeSingleValue(void* Dest) const override { new (Dest) FScriptArray(); }
	void DestroySingleValue(void* Dest) const override;
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** An array value's elements. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* Property, const void* InArray)
		: FScriptArrayHelper(Property->Inner, InArray)
	{
	}
	FScriptArrayHelper(const FProperty* InInner, const void* InArray)
		: Inner(InInner)
		, Array(static_cast<FScriptArray*>(const_cast<void*>(InArray)))
	{
	}

	int32 Num() const { return Array->Num(); }
	bool IsValidIndex(int32 Index) const { return Array->IsValidIndex(Index); }
	uint8* GetRawPtr(int32 Index = 0) const { return static_cast<uint8*>(Array->GetData()) + Index * Inner->GetElementSize(); }
	uint8* GetElementPtr(int32 Index) const { return GetRawPtr(Index); }
	/** Appends an empty element. @return its index */
	int32 AddValue();
	/** Puts empty elements at Index. */
	void InsertValues(int32 Index, int32 Count = 1);
	void RemoveValues(int32 Index, int32 Count = 1);
	/** Removes all and frees the memory. */
	void EmptyValues();
	/** Cuts off elements, or appends empty ones. */
	void Resize(int32 Count);

private:
	/** Moves the elements into a block for Count of them; they are not relocated as bytes, since strings may point into themselves. */
	void Reallocate(int32 Count);

	const FProperty* Inner;
	FScriptArray* Array;
};
