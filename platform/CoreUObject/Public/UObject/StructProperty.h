#pragma once

#include "UObject/Property.h"

#include <memory>

/** A USTRUCT by value: (A=1,B="x") as text. Reading leaves members that are not named as they are. */
class COREUOBJECT_API FStructProperty : public FProperty
{
public:
	FStructProperty(UStruct* InOwner, FName InName, UScriptStruct* InStruct)
		: FProperty(InOwner, InName, InStruct->GetStructureSize(), InStruct->GetMinAlignment())
		, Struct(InStruct)
	{
	}

	FString GetCPPType() const override { return Struct->GetStructCPPName(); }
	void InitializeValue(void* Dest) const override { Struct->InitializeStruct(Dest); }
	void DestroyValue(void* Dest) const override { Struct->DestroyStruct(Dest); }
	void CopyCompleteValue(void* Dest, const void* Src) const override { Struct->CopyScriptStruct(Dest, Src); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;
	void VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const override;
	bool ContainsObjectReference() const override;

	UScriptStruct* const Struct;
};

/** A TArray: (a,b) as text. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
public:
	FArrayProperty(UStruct* InOwner, FName InName, FProperty* InInner)
		: FProperty(InOwner, InName, sizeof(FScriptArray), alignof(FScriptArray))
		, Inner(InInner)
	{
	}

	FString GetCPPType() const override;
	void InitializeValue(void* Dest) const override { new (Dest) FScriptArray(); }
	void DestroyValue(void* Dest) const override;
	void CopyCompleteValue(void* Dest, const void* Src) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;
	void VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const override;
	bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }

	/** The element; its offset is 0. */
	const std::unique_ptr<FProperty> Inner;
};

/** An array value's elements. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* Property, const void* InArray)
		: Inner(Property->Inner.get())
		, Array(static_cast<FScriptArray*>(const_cast<void*>(InArray)))
	{
	}

	int32 Num() const { return Array->Num(); }
	uint8* GetRawPtr(int32 Index) const { return static_cast<uint8*>(Array->GetData()) + Index * Inner->GetSize(); }
	/** Appends an empty element. @return its index */
	int32 AddValue();
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
