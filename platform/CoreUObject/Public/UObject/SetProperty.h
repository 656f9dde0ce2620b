#pragma once

#include "Containers/ScriptSet.h"
#include "UObject/Property.h"

/**
 * The elements of a set or map value. An index counts the holes that removals have left: look only at those below GetMaxIndex that are
 * valid. Elements keep the order in which they were added.
 */
class COREUOBJECT_API FScriptHashedHelper
{
public:
	/** @param InValueProp null for a set */
	FScriptHashedHelper(const FProperty* InKeyProp, const FProperty* InValueProp, const void* InSet);

	int32 Num() const { return Set->Num(); }
	int32 GetMaxIndex() const { return Set->Slots.Num(); }
	bool IsValidIndex(int32 Index) const { return Set->Slots.IsValidIndex(Index) && HeadAt(Index).bLive; }
	/** A key must not be changed so that it is another one, unless Rehash is called. */
	uint8* GetKeyPtr(int32 Index) const { return SlotAt(Index) + Layout.KeyOffset; }
	uint8* GetValuePtr(int32 Index) const { return SlotAt(Index) + Layout.ValueOffset; }
	/** @return INDEX_NONE when the key is not there */
	int32 FindIndex(const void* Key) const;
	/** The index of the key, which is added with an empty value when it is not there. */
	int32 FindOrAdd(const void* Key);
	void RemoveAt(int32 Index);
	/** Removes all and frees the memory. */
	void EmptyElements();
	/** To be called when keys have changed in place; of keys that have become equal the first stays. */
	void Rehash();
	/** The same, when a key has changed. */
	void RehashIfNeeded();

private:
	struct FHeads
	{
		const FScriptHashedHelper& Helper;
		int32 Num() const { return Helper.GetMaxIndex(); }
		const FHashedSlotHead& operator[](int32 Index) const { return Helper.HeadAt(Index); }
	};

	uint8* SlotAt(int32 Index) const { return static_cast<uint8*>(Set->Slots.GetData()) + static_cast<SIZE_T>(Index) * Layout.SlotSize; }
	FHashedSlotHead& HeadAt(int32 Index) const { return *reinterpret_cast<FHashedSlotHead*>(SlotAt(Index)); }
	int32 Find(const void* Key, uint32 Hash) const;
	int32 AddSlot(uint32 Hash);
	void InitializeSlot(uint8* Slot) const;
	void DestroySlot(uint8* Slot) const;
	void Reallocate(int32 Count);

	const FProperty* KeyProp;
	const FProperty* ValueProp;
	FScriptSetLayout Layout;
	FScriptSet* Set;
};

/** A TSet: (a,b) as text. */
class COREUOBJECT_API FSetProperty : public FProperty
{
	DECLARE_FIELD(FSetProperty, FProperty)

	FSetProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: FProperty(InOwner, InName, InFlags)
	{
		SetLayout(sizeof(FScriptSet), alignof(FScriptSet));
	}
	~FSetProperty() override { delete ElementProp; }

	void Link() override { ElementProp->Link(); }
	bool HasType() const override { return ElementProp && ElementProp->CanBeKey(); }
	FString GetCPPType() const override;
	void CopySingleValue(void* Dest, const void* Src) const override;
	/** The order does not count. */
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	using FProperty::ContainsObjectReference;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override
	{
		return ElementProp->ContainsObjectReference(Encountered);
	}

	/** The element; owned, and its offset is 0. */
	FProperty* ElementProp = nullptr;

protected:
	FString MakeTypeTag() const override;
	void InitializeSingleValue(void* Dest) const override { new (Dest) FScriptSet(); }
	void DestroySingleValue(void* Dest) const override;
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A set value's elements. */
class COREUOBJECT_API FScriptSetHelper : public FScriptHashedHelper
{
public:
	FScriptSetHelper(const FSetProperty* Property, const void* InSet)
		: FScriptHashedHelper(Property->ElementProp, nullptr, InSet)
	{
	}

	uint8* GetElementPtr(int32 Index) const { return GetKeyPtr(Index); }
	int32 FindElementIndex(const void* Element) const { return FindIndex(Element); }
	void AddElement(const void* Element) { FindOrAdd(Element); }
};
