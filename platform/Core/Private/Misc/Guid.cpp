#include "Misc/Guid.h"

#include "Misc/Char.h"

#include <array>
#include <sys/random.h>

namespace
{
/** The system's randomness, fetched for many identifiers at once. */
class FRandomPool
{
public:
	uint32 Next()
	{
		if (Used == Numbers.size())
		{
			verify(::getentropy(Numbers.data(), sizeof(Numbers)) == 0);
			Used = 0;
		}
		return Numbers[Used++];
	}

private:
	std::array<uint32, 64> Numbers;
	SIZE_T Used = Numbers.size();
};
}

FGuid FGuid::NewGuid()
{
	thread_local FRandomPool Random;
	const uint32 A = Random.Next();
	const uint32 B = Random.Next();
	const uint32 C = Random.Next();
	FGuid Guid(A, B, C, Random.Next());
	Guid.B = (Guid.B & 0xffff0fff) | 0x00004000;
	Guid.C = (Guid.C & 0x3fffffff) | 0x80000000;
	return Guid;
}

void FGuid::AppendString(FString& Out, EGuidFormats Format) const
{
	static const TCHAR* const Formats[] = {
		TEXT("%08X%04X%04X%04X%04X%08X"),
		TEXT("%08x%04x%04x%04x%04x%08x"),
		TEXT("%08X-%04X-%04X-%04X-%04X%08X"),
		TEXT("%08x-%04x-%04x-%04x-%04x%08x"),
	};
	Out.Appendf(Formats[static_cast<uint8>(Format)], A, B >> 16, B & 0xffff, C >> 16, C & 0xffff, D);
}

FString FGuid::ToString(EGuidFormats Format) const
{
	FString Result;
	AppendString(Result, Format);
	return Result;
}

namespace
{
int32 ToHexDigit(TCHAR Char)
{
	return FChar::IsDigit(Char)      ? Char - '0'
		: Char >= 'A' && Char <= 'F' ? Char - 'A' + 10
		: Char >= 'a' && Char <= 'f' ? Char - 'a' + 10
									 : -1;
}
}

bool FGuid::Parse(const FString& Text, FGuid& OutGuid)
{
	const bool bHyphens = Text.Len() == 36 && Text[8] == '-' && Text[13] == '-' && Text[18] == '-' && Text[23] == '-';
	const FString Digits = bHyphens ? Text.Replace(TEXT("-"), TEXT("")) : Text;
	if (Digits.Len() != 32)
	{
		return false;
	}
	uint32 Parts[4] = {};
	for (int32 Index = 0; Index < 32; ++Index)
	{
		const int32 Digit = ToHexDigit(Digits[Index]);
		if (Digit < 0)
		{
			return false;
		}
		Parts[Index / 8] = Parts[Index / 8] << 4 | static_cast<uint32>(Digit);
	}
	OutGuid = FGuid(Parts[0], Parts[1], Parts[2], Parts[3]);
	return true;
}

bool FGuid::ExportTextItem(FString& ValueStr, const FGuid&, UObject*, int32, UObject*) const
{
	AppendString(ValueStr);
	return true;
}

bool FGuid::ImportTextItem(const TCHAR*& Buffer, int32, UObject*, FOutputDevice*)
{
	int32 Length = 0;
	while (Length < 36 && (ToHexDigit(Buffer[Length]) >= 0 || Buffer[Length] == '-'))
	{
		++Length;
	}
	if (!Parse(FString(Length, Buffer), *this))
	{
		return false;
	}
	Buffer += Length;
	return true;
}
