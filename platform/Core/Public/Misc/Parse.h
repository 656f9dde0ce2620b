#pragma once

#include "Containers/UnrealString.h"

/** Pieces of text that config files and values as text are made of. */
struct CORE_API FParse
{
	/**
	 * Reads a text in double quotes: \n \r \t \" \\ \' stand for characters, any other backslash for itself.
	 * @param OutNumCharsRead how long it is in Buffer, quotes included
	 * @return false, with nothing written, when Buffer does not begin with a quote or no quote ends it
	 */
	static bool QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead = nullptr);
	/** Appends the text so that QuotedString reads it; the engine has no such function here. */
	static void AppendQuotedString(FString& Out, const FString& Text);
};
