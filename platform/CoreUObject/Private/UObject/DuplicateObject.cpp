#include "ObjectTable.h"
#include "Serialization/ObjectReader.h"
#include "Serialization/ObjectWriter.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
class FDuplicator
{
public:
	FDuplicator(const UObject* InSource, EObjectFlags InFlagMask)
		: Source(InSource)
		, FlagMask(InFlagMask & ~(RF_MarkAsNative | RF_ClassDefaultObject | RF_NeedLoad | RF_NeedPostLoad | RF_WasLoaded))
	{
	}

	UObject* Duplicate(UObject* Outer, FName Name)
	{
		UObject* const Result = Make(Source, Outer, Name);
		// Writing one part finds further ones.
		for (int32 Index = 0; Index < Parts.Num(); ++Index)
		{
			Parts[Index].Bytes = Write(Parts[Index].Original);
		}
		for (const FPart& Part : Parts)
		{
			FObjectReader Reader(Part.Bytes);
			Part.Copy->Serialize(Reader);
			ResetDuplicateTransient(Part.Copy);
		}
		for (const FPart& Part : Parts)
		{
			Part.Copy->PostDuplicate(false);
		}
		return Result;
	}

private:
	struct FPart
	{
		const UObject* Original;
		UObject* Copy;
		TArray<uint8> Bytes;
	};

	/** Writes the copies where the original refers to what is copied. */
	class FWriter final : public FObjectWriter
	{
	public:
		FWriter(TArray<uint8>& OutBytes, FDuplicator& InOwner)
			: FObjectWriter(OutBytes)
			, Owner(InOwner)
		{
		}

		using FObjectWriter::operator<<;
		FArchive& operator<<(UObject*& Value) override
		{
			UObject* Copy = Owner.FindOrMake(Value);
			return FObjectWriter::operator<<(Copy);
		}

	private:
		FDuplicator& Owner;
	};

	TArray<uint8> Write(const UObject* Original)
	{
		TArray<uint8> Bytes;
		FWriter Writer(Bytes, *this);
		const_cast<UObject*>(Original)->Serialize(Writer);
		return Bytes;
	}

	/** What stands for an object that a copied one refers to: its copy, or itself. */
	UObject* FindOrMake(UObject* Object)
	{
		if (UObject* const* const Copy = Copies.Find(Object))
		{
			return *Copy;
		}
		return Object && Object->IsIn(Source) ? Make(Object, FindOrMake(Object->GetOuter()), Object->GetFName()) : Object;
	}

	UObject* Make(const UObject* Original, UObject* Outer, FName Name)
	{
		// The constructor of what lies around it may have made it.
		UObject* Copy = Name.IsNone() ? nullptr : StaticFindObjectFast(Original->GetClass(), Outer, Name, true);
		checkf(!Copy || Original != Source, TEXT("DuplicateObject: there is an object named %s already"), *GetPathNameSafe(Copy));
		if (!Copy)
		{
			Copy = StaticConstructObject(Original->GetClass(), Outer, Name, Original->GetFlags() & FlagMask, Original->GetArchetype());
		}
		Copies.Add(Original, Copy);
		Parts.Add({ Original, Copy, {} });
		return Copy;
	}

	static void ResetDuplicateTransient(UObject* Copy)
	{
		const UObject* const Archetype = Copy->GetArchetype();
		for (TFieldIterator<FProperty> Property(Archetype->GetClass()); Property; ++Property)
		{
			if (Property->HasAnyPropertyFlags(CPF_DuplicateTransient))
			{
				Property->CopyCompleteValue_InContainer(Copy, Archetype);
			}
		}
	}

	const UObject* Source;
	EObjectFlags FlagMask;
	TArray<FPart> Parts;
	TMap<const UObject*, UObject*> Copies;
};
}

UObject* StaticDuplicateObject(const UObject* SourceObject, UObject* DestOuter, FName DestName, EObjectFlags FlagMask)
{
	return FDuplicator(SourceObject, FlagMask).Duplicate(DestOuter, DestName);
}
