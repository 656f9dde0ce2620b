#pragma once

#include "Serialization/MemoryWriter.h"

/** Writes values for this process alone: names and references to objects as they are in memory, which nothing keeps. */
class COREUOBJECT_API FObjectWriter : public FMemoryWriter
{
public:
	using FMemoryWriter::FMemoryWriter;

	using FMemoryWriter::operator<<;
	FArchive& operator<<(FName& Value) override;
	FArchive& operator<<(UObject*& Value) override;
};
