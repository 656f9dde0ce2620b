#pragma once

#include "CoreMinimal.h"

/** The pieces that values as text are made of. */
namespace PropertyText
{
/** @return behind the closing quote of a quoted text, or null when Buffer is none */
const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& Out);
/** Reads up to a comma, a closing bracket or white space. @return behind it */
const TCHAR* ReadWord(const TCHAR* Buffer, FString& Out);
/** A value that stands among others: quoted, or a word. */
const TCHAR* ReadDelimited(const TCHAR* Buffer, FString& Out);
const TCHAR* SkipBlanks(const TCHAR* Buffer);
/** Passes over one value of any kind. @return behind it; null when a bracket or quote has no match */
const TCHAR* SkipValue(const TCHAR* Buffer);

/** The whole of Text as a number, or false. */
bool ParseInteger(const FString& Text, int64& Out);
bool ParseReal(const FString& Text, double& Out);
}
