#pragma once

#include "UObject/Object.h"

/** References to objects as text. */
namespace ObjectText
{
/** Class'Path' with full paths, quoted with PPF_Delimited; None for null. */
void Export(FString& ValueStr, const UObject* Object, int32 PortFlags);
/**
 * Reads Class'Path', Path or None; the object is loaded when it is not in memory.
 * @return behind the text; null when there is no such object
 */
const TCHAR* Import(const TCHAR* Buffer, UObject*& OutObject);
/** Class'Path' or Path: the path. Empty for None. */
FString GetReferencedPath(const FString& Text);
}
