#pragma once

#include "Misc/Char.h"

/** The C library's string functions for TCHAR strings that end in a zero. */
struct CORE_API FCString
{
	static int32 Strlen(const TCHAR* String);
	/** Below, equal or above zero, by code units. */
	static int32 Strcmp(const TCHAR* A, const TCHAR* B);
	static int32 Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);
	/** The same, ignoring case. */
	static int32 Stricmp(const TCHAR* A, const TCHAR* B);
	static int32 Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);
	/** The first place of Find in String, or null. */
	static const TCHAR* Strstr(const TCHAR* String, const TCHAR* Find);
	static const TCHAR* Stristr(const TCHAR* String, const TCHAR* Find);
	static const TCHAR* Strchr(const TCHAR* String, TCHAR Char);
	/** The number that the text begins with, behind white space; 0 when there is none. */
	static int32 Atoi(const TCHAR* String);
	static int64 Atoi64(const TCHAR* String);
	static float Atof(const TCHAR* String);
	static double Atod(const TCHAR* String);
	static int32 Strtoi(const TCHAR* Start, TCHAR** End, int32 Base);
	static int64 Strtoi64(const TCHAR* Start, TCHAR** End, int32 Base);
	/** True for "true", "yes", "on" and numbers other than 0. */
	static bool ToBool(const TCHAR* String);
	static bool IsNumeric(const TCHAR* String);
};
