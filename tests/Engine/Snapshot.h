#pragma once

#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "UObject/UObjectGlobals.h"

/** An archive that keeps references to objects in memory as they are. */
template <typename BaseArchive>
class TPointerArchive : public BaseArchive
{
public:
	using BaseArchive::BaseArchive;
	using BaseArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		this->Serialize(&Object, sizeof(Object));
		return *this;
	}
};

/** What objects were, to bring them back as an undo does: all are read, then all are told. */
class FSnapshot
{
public:
	explicit FSnapshot(const TArray<UObject*>& InObjects)
	{
		for (UObject* const Object : InObjects)
		{
			FEntry& Entry = Entries.AddDefaulted_GetRef();
			Entry.Object = Object;
			TPointerArchive<FMemoryWriter> Writer(Entry.Bytes);
			Object->Serialize(Writer);
		}
	}

	/** @return whether no archive had an error */
	bool Restore()
	{
		bool bGood = true;
		for (FEntry& Entry : Entries)
		{
			TPointerArchive<FMemoryReader> Reader(Entry.Bytes);
			Entry.Object->Serialize(Reader);
			bGood &= !Reader.IsError() && Reader.Tell() == Entry.Bytes.Num();
		}
		for (const FEntry& Entry : Entries)
		{
			Entry.Object->PostEditUndo();
		}
		return bGood;
	}

	const TArray<uint8>& GetBytes(int32 Index) const { return Entries[Index].Bytes; }

private:
	struct FEntry
	{
		UObject* Object;
		TArray<uint8> Bytes;
	};
	TArray<FEntry> Entries;
};
