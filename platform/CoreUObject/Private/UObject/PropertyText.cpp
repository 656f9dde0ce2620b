#include "PropertyText.h"

#include "Misc/Parse.h"

#include <charconv>
#include <string>

namespace PropertyText
{
namespace
{
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

const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& Out)
{
	int32 Length = 0;
	return FParse::QuotedString(Buffer, Out, &Length) ? Buffer + Length : nullptr;
}

const TCHAR* ReadWord(const TCHAR* Buffer, FString& Out)
{
	const TCHAR* End = Buffer;
	while (*End != '\0' && *End != ',' && *End != ')' && !FChar::IsWhitespace(*End))
	{
		++End;
	}
	Out = FString(static_cast<int32>(End - Buffer), Buffer);
	return End;
}

const TCHAR* ReadDelimited(const TCHAR* Buffer, FString& Out)
{
	return *Buffer == '"' ? ReadQuoted(Buffer, Out) : ReadWord(Buffer, Out);
}

const TCHAR* SkipBlanks(const TCHAR* Buffer)
{
	while (FChar::IsWhitespace(*Buffer))
	{
		++Buffer;
	}
	return Buffer;
}

const TCHAR* SkipValue(const TCHAR* Buffer)
{
	int32 Depth = 0;
	FString Ignored;
	while (*Buffer != '\0' && (Depth > 0 || (*Buffer != ',' && *Buffer != ')')))
	{
		if (*Buffer == '"')
		{
			Buffer = ReadQuoted(Buffer, Ignored);
			if (!Buffer)
			{
				return nullptr;
			}
			continue;
		}
		Depth += *Buffer == '(';
		Depth -= *Buffer == ')';
		++Buffer;
	}
	return Depth == 0 ? Buffer : nullptr;
}

bool ParseInteger(const FString& Text, int64& Out)
{
	return ParseNumber(Text, Out);
}

bool ParseReal(const FString& Text, double& Out)
{
	return ParseNumber(Text, Out);
}
}
