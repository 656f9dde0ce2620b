#pragma once

#include "UObject/Property.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

/** A reference to one object, of any strength. As text: Class'Path' with full paths, or None. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty)

	using FProperty::FProperty;

	/** Null for a reference to an object that is gone or not loaded. */
	virtual UObject* GetObjectPropertyValue(const void* Value) const = 0;
	virtual void SetObjectPropertyValue(void* Value, UObject* Object) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* Container, UObject* Object, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), Object);
	}
	void Serialize(FArchive& Ar) override;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return true; }

	/** What the objects must derive from. */
	UClass* PropertyClass = nullptr;

protected:
	/** "Template<UClass>" */
	FString MakeCPPType(const TCHAR* Template, const UClass* Class) const;
	/** Whether the property may hold the object. */
	virtual bool Accepts(const UObject* Object) const;
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	/** The object is loaded when it is not in memory; one that can't be had makes the text none of this type. */
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A pointer to an object, raw or TObjectPtr. */
class COREUOBJECT_API FObjectProperty : public TProperty<UObject*, FObjectPropertyBase>
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase)

	using TProperty::TProperty;

	FString GetCPPType() const override { return MakeCPPType(TEXT("TObjectPtr"), PropertyClass); }
	UObject* GetObjectPropertyValue(const void* Value) const override { return GetPropertyValue(Value); }
	void SetObjectPropertyValue(void* Value, UObject* Object) const override { SetPropertyValue(Value, Object); }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
};

/** A TSubclassOf. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty)

	FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	FString GetCPPType() const override { return MakeCPPType(TEXT("TSubclassOf"), MetaClass); }
	void Serialize(FArchive& Ar) override;
	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }

	/** What the classes must derive from. */
	UClass* MetaClass = nullptr;

protected:
	bool Accepts(const UObject* Object) const override;
};

/** A TWeakObjectPtr. */
class COREUOBJECT_API FWeakObjectProperty : public TProperty<FWeakObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase)

	using TProperty::TProperty;

	FString GetCPPType() const override { return MakeCPPType(TEXT("TWeakObjectPtr"), PropertyClass); }
	UObject* GetObjectPropertyValue(const void* Value) const override { return GetPropertyValue(Value).Get(); }
	void SetObjectPropertyValue(void* Value, UObject* Object) const override { SetPropertyValue(Value, Object); }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
};

/** A TSoftObjectPtr. As text the bare path, or None. */
class COREUOBJECT_API FSoftObjectProperty : public TProperty<FSoftObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FSoftObjectProperty, FObjectPropertyBase)

	using TProperty::TProperty;

	FString GetCPPType() const override { return MakeCPPType(TEXT("TSoftObjectPtr"), PropertyClass); }
	UObject* GetObjectPropertyValue(const void* Value) const override { return GetPropertyValue(Value).Get(); }
	void SetObjectPropertyValue(void* Value, UObject* Object) const override { SetPropertyValue(Value, FSoftObjectPtr(Object)); }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return false; }

protected:
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	/** Takes any path; nothing is looked for. */
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A TSoftClassPtr. */
class COREUOBJECT_API FSoftClassProperty : public FSoftObjectProperty
{
	DECLARE_FIELD(FSoftClassProperty, FSoftObjectProperty)

	FSoftClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	FString GetCPPType() const override { return MakeCPPType(TEXT("TSoftClassPtr"), MetaClass); }
	void Serialize(FArchive& Ar) override;
	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }

	/** What the classes must derive from. */
	UClass* MetaClass = nullptr;
};

/** A TScriptInterface: an object of a class with the interface. As text like an object. */
class COREUOBJECT_API FInterfaceProperty : public TProperty<FScriptInterface>
{
	DECLARE_FIELD(FInterfaceProperty, FProperty)

	using TProperty::TProperty;

	FString GetCPPType() const override;
	void Serialize(FArchive& Ar) override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const override { return true; }

	/** The UInterface's class. */
	UClass* InterfaceClass = nullptr;

protected:
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const override;
};
