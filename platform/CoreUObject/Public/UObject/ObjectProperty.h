#pragma once

#include "UObject/Property.h"

/** A pointer to an object, raw or TObjectPtr. As text: Class'Path' with full paths, or None. */
class COREUOBJECT_API FObjectProperty : public TProperty<UObject*>
{
public:
	FObjectProperty(UStruct* InOwner, FName InName, UClass* InPropertyClass)
		: TProperty(InOwner, InName)
		, PropertyClass(InPropertyClass)
	{
	}

	static UObject* GetObjectPropertyValue(const void* Value) { return GetPropertyValue(Value); }
	static void SetObjectPropertyValue(void* Value, UObject* Object) { SetPropertyValue(Value, Object); }

	FString GetCPPType() const override;
	void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const override;
	/** The object must be in memory. */
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const override;
	void VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const override;
	bool ContainsObjectReference() const override { return true; }

	/** What the objects must derive from. */
	UClass* const PropertyClass;

protected:
	/** Whether the property may hold the object. */
	virtual bool Accepts(const UObject* Object) const { return Object->IsA(PropertyClass); }
};

/** A TSubclassOf. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
public:
	FClassProperty(UStruct* InOwner, FName InName, UClass* InMetaClass)
		: FObjectProperty(InOwner, InName, UClass::StaticClass())
		, MetaClass(InMetaClass)
	{
	}

	FString GetCPPType() const override;

	/** What the classes must derive from. */
	UClass* const MetaClass;

protected:
	bool Accepts(const UObject* Object) const override;
};
