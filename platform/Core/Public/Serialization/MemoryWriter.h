#pragma once

#include "Serialization/Archive.h"

/** Writes into an array that its owner keeps; it grows as needed. */
class CORE_API FMemoryWriter : public FArchive
{
public:
	explicit FMemoryWriter(TArray<uint8>& InBytes)
		: Bytes(InBytes)
	{
		bSaving = true;
	}

	void Serialize(void* Data, int64 Length) override;
	int64 Tell() const override { return Offset; }
	int64 TotalSize() const override { return Bytes.Num(); }
	/** A later write at an earlier place overwrites what is there. */
	void Seek(int64 Position) override { Offset = Position; }

private:
	TArray<uint8>& Bytes;
	int64 Offset = 0;
};
