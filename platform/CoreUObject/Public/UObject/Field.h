#pragma once

#include "UObject/ObjectMacros.h"

class UStruct;

/** What the sources say about a declaration beside its type: Category, DisplayName, ToolTip and all of meta=(...). */
class COREUOBJECT_API FFieldMetaData
{
public:
	void Set(const FName& Key, const FString& Value) { Values.Add(Key, Value); }
	bool Has(const FName& Key) const { return Values.Contains(Key); }
	/** Empty when the key is not there. */
	const FString& Get(const FName& Key) const;
	/** DisplayName, or else Name with blanks between its words. */
	FText GetDisplayName(const FString& Name, bool bIsBool = false) const;
	/** ToolTip, or else the display name. */
	FText GetToolTip(const FString& Name, bool bIsBool = false) const;

private:
	TMap<FName, FString> Values;
};

/** A field that is no object: a property. Owned by the struct, class, function or array property that it describes a part of. */
class COREUOBJECT_API FField
{
public:
	FField(UStruct* InOwner, FName InName)
		: NamePrivate(InName)
		, OwnerStruct(InOwner)
	{
	}
	virtual ~FField() = default;
	UE_NONCOPYABLE(FField)

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	UStruct* GetOwnerStruct() const { return OwnerStruct; }
	/** Null for a part of a struct or a function. */
	UClass* GetOwnerClass() const;
	template <typename T>
	bool IsA() const
	{
		return dynamic_cast<const T*>(this) != nullptr;
	}

	const FString& GetMetaData(const FName& Key) const { return MetaData.Get(Key); }
	bool HasMetaData(const FName& Key) const { return MetaData.Has(Key); }
	void SetMetaData(const FName& Key, const FString& Value) { MetaData.Set(Key, Value); }
	FText GetDisplayNameText() const { return MetaData.GetDisplayName(GetName(), IsBool()); }
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** The next field of the same owner. */
	FField* Next = nullptr;

private:
	virtual bool IsBool() const { return false; }

	FName NamePrivate;
	UStruct* OwnerStruct;
	FFieldMetaData MetaData;
};

/** The field as a To, or null when it is none. */
template <typename To>
To* CastField(FField* Field)
{
	return dynamic_cast<To*>(Field);
}

template <typename To>
const To* CastField(const FField* Field)
{
	return dynamic_cast<const To*>(Field);
}
