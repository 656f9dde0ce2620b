#pragma once

#include "CoreMinimal.h"

/** Where a writer puts white space. */
template <typename CharType>
struct TPrettyJsonPrintPolicy
{
	static void WriteLineTerminator(FString& Out) { Out += LINE_TERMINATOR; }
	static void WriteTabs(FString& Out, int32 Count) { Out.Native().append(static_cast<SIZE_T>(Count), '\t'); }
	static void WriteSpace(FString& Out) { Out.AppendChar(' '); }
};

template <typename CharType>
struct TCondensedJsonPrintPolicy
{
	static void WriteLineTerminator(FString&) {}
	static void WriteTabs(FString&, int32) {}
	static void WriteSpace(FString&) {}
};
