#include "Misc/Parse.h"

#include <algorithm>

namespace
{
struct FEscape
{
	TCHAR Char;
	TCHAR Letter;
};

constexpr FEscape Escapes[] = { { '\n', 'n' }, { '\r', 'r' }, { '\t', 't' }, { '"', '"' }, { '\\', '\\' }, { '\'', '\'' } };

const FEscape* FindEscape(TCHAR FEscape::*Member, TCHAR Wanted)
{
	const FEscape* const Found = std::ranges::find(Escapes, Wanted, Member);
	return Found == std::end(Escapes) ? nullptr : Found;
}
}

bool FParse::QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead)
{
	if (*Buffer != '"')
	{
		return false;
	}
	FString Text;
	const TCHAR* Position = Buffer + 1;
	for (; *Position != '"'; ++Position)
	{
		if (*Position == '\0')
		{
			return false;
		}
		const FEscape* const Escape = *Position == '\\' ? FindEscape(&FEscape::Letter, Position[1]) : nullptr;
		Text += Escape ? Escape->Char : *Position;
		Position += Escape ? 1 : 0;
	}
	Value = MoveTemp(Text);
	if (OutNumCharsRead)
	{
		*OutNumCharsRead = static_cast<int32>(Position + 1 - Buffer);
	}
	return true;
}

void FParse::AppendQuotedString(FString& Out, const FString& Text)
{
	Out += TCHAR('"');
	for (const TCHAR Char : Text)
	{
		const FEscape* const Escape = FindEscape(&FEscape::Char, Char);
		if (Escape)
		{
			Out += TCHAR('\\');
		}
		Out += Escape ? Escape->Letter : Char;
	}
	Out += TCHAR('"');
}
