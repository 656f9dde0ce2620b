#pragma once

#include "Serialization/MemoryReader.h"

/** Reads what FObjectWriter has written, while the objects are still there. */
class COREUOBJECT_API FObjectReader : public FMemoryReader
{
public:
	using FMemoryReader::FMemoryReader;

	using FMemoryReader::operator<<;
	FArchive& operator<<(FName& Value) override;
	FArchive& operator<<(UObject*& Value) override;
};
