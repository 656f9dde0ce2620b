#pragma once

#include "CoreTypes.h"

/** Classes and cases of single code units; letters beyond ASCII follow Unicode's simple case mapping. */
struct CORE_API FChar
{
	static bool IsWhitespace(TCHAR Char)
	{
		return Char == ' ' || (Char >= 9 && Char <= 13) || Char == 0x85 || Char == 0xA0 || (Char > 0x1000 && IsWideWhitespace(Char));
	}
	static constexpr bool IsDigit(TCHAR Char) { return Char >= '0' && Char <= '9'; }
	static constexpr bool IsHexDigit(TCHAR Char) { return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F'); }
	static constexpr bool IsUpperAscii(TCHAR Char) { return Char >= 'A' && Char <= 'Z'; }
	static constexpr bool IsLowerAscii(TCHAR Char) { return Char >= 'a' && Char <= 'z'; }
	static bool IsUpper(TCHAR Char) { return Char != ToLower(Char); }
	static bool IsLower(TCHAR Char) { return Char != ToUpper(Char); }
	static bool IsAlpha(TCHAR Char) { return IsUpper(Char) || IsLower(Char); }
	static bool IsAlnum(TCHAR Char) { return IsDigit(Char) || IsAlpha(Char); }
	static constexpr bool IsLinebreak(TCHAR Char) { return Char == '\n' || Char == '\r'; }

	static TCHAR ToLower(TCHAR Char)
	{
		return Char < 128 ? (IsUpperAscii(Char) ? static_cast<TCHAR>(Char + 32) : Char) : ToLowerWide(Char);
	}
	static TCHAR ToUpper(TCHAR Char)
	{
		return Char < 128 ? (IsLowerAscii(Char) ? static_cast<TCHAR>(Char - 32) : Char) : ToUpperWide(Char);
	}

private:
	static bool IsWideWhitespace(TCHAR Char);
	static TCHAR ToLowerWide(TCHAR Char);
	static TCHAR ToUpperWide(TCHAR Char);
};

using TChar = FChar;
