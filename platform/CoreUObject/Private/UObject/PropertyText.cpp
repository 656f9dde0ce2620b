#include "PropertyText.h"

#include "Misc/Parse.h"
#include "UObject/ObjectMacros.h"

namespace PropertyText
{
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

void ExportString(FString& ValueStr, const FString& Text, int32 PortFlags)
{
	if (PortFlags & PPF_Delimited)
	{
		FParse::AppendQuotedString(ValueStr, Text);
	}
	else
	{
		ValueStr += Text;
	}
}

void ExportPath(FString& ValueStr, const FString& Path, int32 PortFlags)
{
	if (Path.IsEmpty())
	{
		ValueStr += TEXT("None");
	}
	else
	{
		ExportString(ValueStr, Path, PortFlags);
	}
}

const TCHAR* ImportString(const TCHAR* Buffer, FString& Out, int32 PortFlags)
{
	if (PortFlags & PPF_Delimited)
	{
		return ReadDelimited(Buffer, Out);
	}
	Out = Buffer;
	return Buffer + Out.Len();
}

bool StartsWith(const TCHAR* Buffer, std::u16string_view Prefix)
{
	for (const TCHAR Char : Prefix)
	{
		if (*Buffer++ != Char)
		{
			return false;
		}
	}
	return true;
}
}
