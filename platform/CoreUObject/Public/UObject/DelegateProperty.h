#pragma once

#include "UObject/Property.h"
#include "UObject/ScriptDelegates.h"

/** A dynamic delegate: "/Path.Object.Function" as text, "(null).None" when it is not bound. */
class COREUOBJECT_API FDelegateProperty : public TProperty<FScriptDelegate>
{
	DECLARE_FIELD(FDelegateProperty, FProperty)

	using TProperty::TProperty;

	FString GetCPPType() const override { return TEXT("FScriptDelegate"); }
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return true; }

	/** Its properties are the delegate's parameters. */
	UFunction* SignatureFunction = nullptr;

protected:
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A dynamic delegate with any number of bindings: (A.Function,B.Function) as text. */
class COREUOBJECT_API FMulticastDelegateProperty : public FProperty
{
	DECLARE_FIELD(FMulticastDelegateProperty, FProperty)

	using FProperty::FProperty;

	virtual const FMulticastScriptDelegate* GetMulticastDelegate(const void* Value) const = 0;
	void Serialize(FArchive& Ar) override;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return true; }

	/** Its properties are the delegate's parameters. */
	UFunction* SignatureFunction = nullptr;
};

/** One that lies in its container itself. */
class COREUOBJECT_API FMulticastInlineDelegateProperty : public TProperty<FMulticastScriptDelegate, FMulticastDelegateProperty>
{
	DECLARE_FIELD(FMulticastInlineDelegateProperty, FMulticastDelegateProperty)

	using TProperty::TProperty;

	FString GetCPPType() const override { return TEXT("FMulticastScriptDelegate"); }
	const FMulticastScriptDelegate* GetMulticastDelegate(const void* Value) const override { return &GetPropertyValue(Value); }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};
