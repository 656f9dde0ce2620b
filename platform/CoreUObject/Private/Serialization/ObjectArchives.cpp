#include "Serialization/ObjectReader.h"
#include "Serialization/ObjectWriter.h"

#include <type_traits>

static_assert(std::is_trivially_copyable_v<FName>);

FArchive& FObjectWriter::operator<<(FName& Value)
{
	Serialize(&Value, sizeof(Value));
	return *this;
}

FArchive& FObjectWriter::operator<<(UObject*& Value)
{
	Serialize(&Value, sizeof(Value));
	return *this;
}

FArchive& FObjectReader::operator<<(FName& Value)
{
	Serialize(&Value, sizeof(Value));
	return *this;
}

FArchive& FObjectReader::operator<<(UObject*& Value)
{
	Serialize(&Value, sizeof(Value));
	return *this;
}
