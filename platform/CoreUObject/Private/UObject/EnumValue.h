#pragma once

#include "UObject/Class.h"

/** An enum's values as text and in archives, whatever their size. A value that the enum has not goes by its number. */
namespace EnumValue
{
/** The enumerator without "Enum::". */
FString Export(const UEnum* Enum, int64 Value);
/** Takes an enumerator with or without "Enum::", or a number. @return behind it, or null */
const TCHAR* Import(const UEnum* Enum, const TCHAR* Buffer, int64& OutValue);
/** By name, so that enumerators can be moved; one that is gone leaves the value as it was. */
void Serialize(FArchive& Ar, const UEnum* Enum, int64& Value);
}
