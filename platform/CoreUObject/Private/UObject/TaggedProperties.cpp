#include "Serialization/Archive.h"
#include "UObject/UnrealType.h"

namespace
{
/** What stands before a property's value. A tag without a name ends the list. */
struct FPropertyTag
{
	FName Name;
	FName Type;
	/** Of a property that is a fixed array. */
	int32 ArrayIndex = 0;
	/** In bytes, of the value. */
	int32 Size = 0;

	friend FArchive& operator<<(FArchive& Ar, FPropertyTag& Tag)
	{
		Ar << Tag.Name;
		return Tag.Name.IsNone() ? Ar : Ar << Tag.Type << Tag.ArrayIndex << Tag.Size;
	}
};

bool IsKept(const FProperty* Property, const FArchive& Ar)
{
	return !Ar.IsPersistent() || !Property->HasAnyPropertyFlags(CPF_Transient);
}

/** The size is known only behind the value. */
void SaveValue(FArchive& Ar, const FProperty* Property, int32 ArrayIndex, void* Value, const void* Default)
{
	FPropertyTag Tag{ Property->GetFName(), Property->GetTypeTag(), ArrayIndex };
	Ar << Tag;
	const int64 Begin = Ar.Tell();
	Property->SerializeItem(Ar, Value, Default);
	const int64 End = Ar.Tell();
	Tag.Size = static_cast<int32>(End - Begin);
	Ar.Seek(Begin - static_cast<int64>(sizeof(Tag.Size)));
	Ar << Tag.Size;
	Ar.Seek(End);
}

void SaveProperties(FArchive& Ar, const UStruct* Struct, void* Data, const UStruct* DefaultsStruct, const void* Defaults)
{
	for (const FProperty* const Property : Struct->GetAllProperties())
	{
		if (!IsKept(Property, Ar))
		{
			continue;
		}
		const bool bHasDefault = Defaults && DefaultsStruct->IsChildOf(Property->GetOwnerStruct());
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			void* const Value = Property->ContainerPtrToValuePtr<void>(Data, Index);
			const void* const Default = bHasDefault ? Property->ContainerPtrToValuePtr<void>(Defaults, Index) : nullptr;
			if (!Defaults || !Property->Identical(Value, Default))
			{
				SaveValue(Ar, Property, Index, Value, Default);
			}
		}
	}
	FPropertyTag End;
	Ar << End;
}

/** Finds properties by name. They mostly come in the order in which they were written, so the search goes on from the last one. */
class FPropertyFinder
{
public:
	explicit FPropertyFinder(const UStruct* Struct)
		: Properties(Struct->GetAllProperties())
	{
	}

	const FProperty* Find(FName Name)
	{
		for (int32 Tried = 0; Tried < Properties.Num(); ++Tried, ++Next)
		{
			Next = Next < Properties.Num() ? Next : 0;
			if (Properties[Next]->GetFName() == Name)
			{
				return Properties[Next];
			}
		}
		return nullptr;
	}

private:
	const TArray<FProperty*>& Properties;
	int32 Next = 0;
};

void LoadProperties(FArchive& Ar, const UStruct* Struct, void* Data, const UStruct* DefaultsStruct, const void* Defaults)
{
	FPropertyFinder Finder(Struct);
	for (;;)
	{
		FPropertyTag Tag;
		Ar << Tag;
		if (Ar.IsError() || Tag.Name.IsNone())
		{
			return;
		}
		const int64 End = Ar.Tell() + Tag.Size;
		if (Tag.Size < 0 || End > Ar.TotalSize())
		{
			Ar.SetError();
			return;
		}
		const FProperty* const Property = Finder.Find(Tag.Name);
		if (Property && IsKept(Property, Ar) && Property->GetTypeTag() == Tag.Type && Tag.ArrayIndex >= 0 &&
			Tag.ArrayIndex < Property->ArrayDim)
		{
			const bool bHasDefault = Defaults && DefaultsStruct->IsChildOf(Property->GetOwnerStruct());
			Property->SerializeItem(Ar, Property->ContainerPtrToValuePtr<void>(Data, Tag.ArrayIndex),
				bHasDefault ? Property->ContainerPtrToValuePtr<void>(Defaults, Tag.ArrayIndex) : nullptr);
		}
		Ar.Seek(End);
	}
}
}

void UStruct::SerializeTaggedProperties(FArchive& Ar, void* Data, const UStruct* DefaultsStruct, const void* Defaults) const
{
	const auto Run = Ar.IsLoading() ? LoadProperties : SaveProperties;
	Run(Ar, this, Data, DefaultsStruct, Defaults);
}
