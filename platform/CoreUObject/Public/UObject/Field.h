#pragma once

#include "Serialization/Archive.h"
#include "UObject/ObjectMacros.h"

class UStruct;

/** What the sources say about a declaration beside its type: Category, DisplayName, ToolTip and all of meta=(...). */
class COREUOBJECT_API FFieldMetaData
{
public:
	void Set(const FName& Key, const FString& Value) { Values.Add(Key, Value); }
	void Remove(const FName& Key) { Values.Remove(Key); }
	bool Has(const FName& Key) const { return Values.Contains(Key); }
	/** Null when there are none. */
	const TMap<FName, FString>* GetMap() const { return Values.IsEmpty() ? nullptr : &Values; }
	/** Empty when the key is not there. */
	const FString& Get(const FName& Key) const;
	/** DisplayName, or else Name with blanks between its words. */
	FText GetDisplayName(const FString& Name, bool bIsBool = false) const;
	/** ToolTip, or else the display name. */
	FText GetToolTip(const FString& Name, bool bIsBool = false) const;
	friend FArchive& operator<<(FArchive& Ar, FFieldMetaData& MetaData) { return Ar << MetaData.Values; }

private:
	TMap<FName, FString> Values;
};

class FField;

/** What a field belongs to: a struct, class or function, or another field (an array's element belongs to the array). */
class COREUOBJECT_API FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(UStruct* InStruct)
		: Struct(InStruct)
	{
	}
	FFieldVariant(FField* InField)
		: Field(InField)
	{
	}

	bool IsValid() const { return Struct || Field; }
	/** Null for a field. */
	UObject* ToUObject() const;
	/** Null for an object. */
	FField* ToField() const { return Field; }
	/** The struct that the field belongs to in the end. */
	UStruct* GetOwnerStruct() const;

private:
	UStruct* Struct = nullptr;
	FField* Field = nullptr;
};

/** A kind of field. Its name is the C++ one without the prefix: "BoolProperty". */
class COREUOBJECT_API FFieldClass
{
public:
	using FConstructor = FField* (*)(FFieldVariant Owner, const FName& Name, EObjectFlags Flags);

	/** @param InConstructor null for a kind of which there are no fields themselves */
	FFieldClass(const TCHAR* InName, const FFieldClass* InSuperClass, FConstructor InConstructor)
		: Name(InName)
		, SuperClass(InSuperClass)
		, Constructor(InConstructor)
	{
	}
	UE_NONCOPYABLE(FFieldClass)

	FName GetFName() const { return Name; }
	FString GetName() const { return Name.ToString(); }
	const FFieldClass* GetSuperClass() const { return SuperClass; }
	bool IsChildOf(const FFieldClass* Other) const;
	/** Null when there are no fields of this kind itself. */
	FField* Construct(FFieldVariant Owner, const FName& FieldName, EObjectFlags Flags) const;

private:
	FName Name;
	const FFieldClass* SuperClass;
	FConstructor Constructor;
};

#define DECLARE_FIELD(Type, SuperType)                                                                                                     \
public:                                                                                                                                    \
	using Super = SuperType;                                                                                                               \
	static FFieldClass* StaticClass();                                                                                                     \
	FFieldClass* GetClass() const override                                                                                                 \
	{                                                                                                                                      \
		return StaticClass();                                                                                                              \
	}

#define IMPLEMENT_FIELD_WITH(Type, Constructor)                                                                                            \
	FFieldClass* Type::StaticClass()                                                                                                       \
	{                                                                                                                                      \
		static FFieldClass Class(&TEXT(#Type)[1], Super::StaticClass(), Constructor);                                                      \
		return &Class;                                                                                                                     \
	}
#define IMPLEMENT_ABSTRACT_FIELD(Type) IMPLEMENT_FIELD_WITH(Type, nullptr)
#define IMPLEMENT_FIELD(Type)                                                                                                              \
	IMPLEMENT_FIELD_WITH(                                                                                                                  \
		Type, ([](FFieldVariant Owner, const FName& Name, EObjectFlags Flags) -> FField* { return new Type(Owner, Name, Flags); }))

/** A field that is no object: a property. It is deleted by what it belongs to. */
class COREUOBJECT_API FField
{
public:
	FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
		: Owner(InOwner)
		, NamePrivate(InName)
		, FlagsPrivate(InFlags)
	{
	}
	virtual ~FField() = default;
	UE_NONCOPYABLE(FField)

	static FFieldClass* StaticClass();
	virtual FFieldClass* GetClass() const = 0;
	/** A field of the kind of that name ("BoolProperty"), or null. */
	static FField* Construct(const FName& ClassName, FFieldVariant Owner, const FName& Name, EObjectFlags Flags = RF_NoFlags);
	template <typename T>
	bool IsA() const
	{
		return GetClass()->IsChildOf(T::StaticClass());
	}

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	/** "/Script/Module.Type:Field" */
	FString GetPathName() const;
	EObjectFlags GetFlags() const { return FlagsPrivate; }
	FFieldVariant GetOwnerVariant() const { return Owner; }
	/** The struct, class or function, even for the element of an array. */
	UStruct* GetOwnerStruct() const { return Owner.GetOwnerStruct(); }
	/** The class that this is a member of or that has the function; null for a part of a struct. */
	UClass* GetOwnerClass() const;

	const FString& GetMetaData(const FName& Key) const { return MetaData.Get(Key); }
	bool HasMetaData(const FName& Key) const { return MetaData.Has(Key); }
	void SetMetaData(const FName& Key, const FString& Value) { MetaData.Set(Key, Value); }
	void RemoveMetaData(const FName& Key) { MetaData.Remove(Key); }
	/** Null when there are none. */
	const TMap<FName, FString>* GetMetaDataMap() const { return MetaData.GetMap(); }
	FText GetDisplayNameText() const { return MetaData.GetDisplayName(GetName(), IsBool()); }
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** The definition, in both directions: all but kind, name and owner. A collector of references is given the types referred to. */
	virtual void Serialize(FArchive& Ar);

	/** The next field of the same owner. */
	FField* Next = nullptr;

private:
	virtual bool IsBool() const { return false; }

	FFieldVariant Owner;
	FName NamePrivate;
	EObjectFlags FlagsPrivate;
	FFieldMetaData MetaData;
};

/** The field as a To, or null when it is none. */
template <typename To>
To* CastField(FField* Field)
{
	return Field && Field->IsA<To>() ? static_cast<To*>(Field) : nullptr;
}

template <typename To>
const To* CastField(const FField* Field)
{
	return Field && Field->IsA<To>() ? static_cast<const To*>(Field) : nullptr;
}

/** The same for a field that must be a To. */
template <typename To>
To* CastFieldChecked(FField* Field)
{
	To* const Result = CastField<To>(Field);
	check(Result);
	return Result;
}
