#pragma once

#include "Serialization/Archive.h"

/** Reads bytes that its owner keeps. */
class CORE_API FMemoryReader : public FArchive
{
public:
	explicit FMemoryReader(const TArray<uint8>& InBytes)
		: FMemoryReader(InBytes.GetData(), InBytes.Num())
	{
	}
	FMemoryReader(const uint8* InData, int64 InSize)
		: Bytes(InData)
		, Size(InSize)
	{
		bLoading = true;
	}

	/** Beyond the end: an error, and Data stays as it is. */
	void Serialize(void* Data, int64 Length) override;
	int64 Tell() const override { return Offset; }
	int64 TotalSize() const override { return Size; }
	void Seek(int64 Position) override;

private:
	const uint8* Bytes;
	int64 Size;
	int64 Offset = 0;
};
