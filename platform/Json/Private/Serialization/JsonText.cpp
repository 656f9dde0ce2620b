#include "PlainText.h"
#include "Serialization/JsonWriter.h"

#include <charconv>
#include <cmath>

namespace
{
/** The letter behind the backslash, 'u' for a code in hexadecimal, or 0 for a character that stands for itself. */
constexpr char EscapeOf(TCHAR Char)
{
	switch (Char)
	{
	case '"': return '"';
	case '\\': return '\\';
	case '\n': return 'n';
	case '\r': return 'r';
	case '\t': return 't';
	case '\b': return 'b';
	case '\f': return 'f';
	default: return Char < 0x20 ? 'u' : 0;
	}
}
}

void FJsonText::AppendString(FString& Out, const FString& Text)
{
	std::u16string& To = Out.Native();
	To.push_back('"');
	const TCHAR* At = Text.begin();
	const TCHAR* const End = Text.end();
	while (At != End)
	{
		const TCHAR* const Run = At;
		At = FindSpecial(At, End);
		To.append(Run, static_cast<SIZE_T>(At - Run));
		if (At == End)
		{
			break;
		}
		const char Escape = EscapeOf(*At);
		To.push_back('\\');
		To.push_back(static_cast<TCHAR>(Escape));
		if (Escape == 'u')
		{
			static const TCHAR Digits[] = TEXT("0123456789abcdef");
			To.append({ '0', '0', Digits[*At >> 4], Digits[*At & 15] });
		}
		++At;
	}
	To.push_back('"');
}

void FJsonText::AppendNumber(FString& Out, double Number)
{
	if (!std::isfinite(Number))
	{
		Out += TEXT("null");
		return;
	}
	char Buffer[32];
	std::to_chars_result Written;
	constexpr double LargestExact = 1e15;
	if (std::abs(Number) < LargestExact && Number == std::trunc(Number) && !std::signbit(Number))
	{
		Written = std::to_chars(Buffer, Buffer + sizeof(Buffer), static_cast<int64>(Number));
	}
	else
	{
		Written = std::to_chars(Buffer, Buffer + sizeof(Buffer), Number, std::chars_format::general, 17);
	}
	TCHAR Wide[sizeof(Buffer)];
	const SIZE_T Length = static_cast<SIZE_T>(std::copy(Buffer, Written.ptr, Wide) - Wide);
	Out.Native().append(Wide, Length);
}
