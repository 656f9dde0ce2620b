#pragma once

#include "CoreMinimal.h"

#include <charconv>
#include <string>
#include <string_view>

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

/**
 * Reads "(item,item)", blanks and a comma before the end allowed. ReadItem reads one from where it begins and returns behind it, or null.
 * @return behind the closing bracket; null when Buffer is no list
 */
template <typename ReadType>
const TCHAR* ReadList(const TCHAR* Buffer, const ReadType& ReadItem)
{
	if (*Buffer != '(')
	{
		return nullptr;
	}
	Buffer = SkipBlanks(Buffer + 1);
	while (*Buffer != ')')
	{
		Buffer = ReadItem(Buffer);
		Buffer = Buffer ? SkipBlanks(Buffer) : nullptr;
		if (!Buffer || (*Buffer != ',' && *Buffer != ')'))
		{
			return nullptr;
		}
		Buffer = *Buffer == ',' ? SkipBlanks(Buffer + 1) : Buffer;
	}
	return Buffer + 1;
}

/** A string as a value: all of the text, or with PPF_Delimited quoted. */
void ExportString(FString& ValueStr, const FString& Text, int32 PortFlags);
/** The same for a path that may be empty: None then. */
void ExportPath(FString& ValueStr, const FString& Path, int32 PortFlags);
const TCHAR* ImportString(const TCHAR* Buffer, FString& Out, int32 PortFlags);

bool StartsWith(const TCHAR* Buffer, std::u16string_view Prefix);

/** The whole of Text as a number that a T can hold, or false with nothing written. */
template <typename T>
bool ParseNumber(const FString& Text, T& Out)
{
	const std::string Bytes = FUtf8::Encode(Text);
	const char* const Begin = Bytes.data() + (Bytes.starts_with('+') ? 1 : 0);
	const char* const End = Bytes.data() + Bytes.size();
	T Number{};
	const std::from_chars_result Result = std::from_chars(Begin, End, Number);
	if (Result.ec != std::errc() || Result.ptr != End)
	{
		return false;
	}
	Out = Number;
	return true;
}
}
