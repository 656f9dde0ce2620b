#include "Containers/StringConv.h"

#include <cstring>

namespace
{
constexpr char32_t Malformed = 0xFFFFFFFF;

/** How many ASCII bytes lie at the start, in whole blocks of eight. */
SIZE_T AsciiBlocks(const char* Bytes, SIZE_T Count)
{
	SIZE_T Length = 0;
	for (; Length + 8 <= Count; Length += 8)
	{
		uint64 Block;
		std::memcpy(&Block, Bytes + Length, 8);
		if (Block & 0x8080808080808080ull)
		{
			break;
		}
	}
	return Length;
}

SIZE_T AsciiBlocks(const TCHAR* Text, SIZE_T Count)
{
	SIZE_T Length = 0;
	for (; Length + 4 <= Count; Length += 4)
	{
		uint64 Block;
		std::memcpy(&Block, Text + Length, 8);
		if (Block & 0xFF80FF80FF80FF80ull)
		{
			break;
		}
	}
	return Length;
}

/** Reads one code point of UTF-8 at At and moves behind it; Malformed, and one byte further, when there is none. */
char32_t ReadCodePoint(const char*& At, const char* End)
{
	const auto Lead = static_cast<uint8>(*At++);
	if (Lead < 0x80)
	{
		return Lead;
	}
	const int Following = Lead >= 0xF0 ? 3 : (Lead >= 0xE0 ? 2 : 1);
	if (Lead < 0xC2 || Lead > 0xF4 || End - At < Following)
	{
		return Malformed;
	}
	char32_t Code = Lead & (0x3F >> Following);
	for (int Index = 0; Index < Following; ++Index)
	{
		const auto Byte = static_cast<uint8>(At[Index]);
		if ((Byte & 0xC0) != 0x80)
		{
			return Malformed;
		}
		Code = (Code << 6) | (Byte & 0x3F);
	}
	static constexpr char32_t Smallest[] = { 0, 0x80, 0x800, 0x10000 };
	if (Code < Smallest[Following] || Code > 0x10FFFF || (Code >= 0xD800 && Code < 0xE000))
	{
		return Malformed;
	}
	At += Following;
	return Code;
}

TCHAR* WriteUtf16(TCHAR* Out, char32_t Code)
{
	if (Code < 0x10000)
	{
		*Out++ = static_cast<TCHAR>(Code);
		return Out;
	}
	*Out++ = static_cast<TCHAR>(0xD800 + ((Code - 0x10000) >> 10));
	*Out++ = static_cast<TCHAR>(0xDC00 + (Code & 0x3FF));
	return Out;
}

/** @return whether every byte was UTF-8; stops at the first that is not when bStrict */
bool Decode(std::u16string& Out, std::string_view Bytes, bool bStrict)
{
	const SIZE_T Before = Out.size();
	Out.resize(Before + Bytes.size()); // never more code units than bytes
	TCHAR* To = Out.data() + Before;
	const char* At = Bytes.data();
	const char* const End = At + Bytes.size();
	bool bValid = true;
	while (At != End)
	{
		const SIZE_T Ascii = AsciiBlocks(At, static_cast<SIZE_T>(End - At));
		for (SIZE_T Index = 0; Index < Ascii; ++Index)
		{
			To[Index] = static_cast<uint8>(At[Index]);
		}
		At += Ascii;
		To += Ascii;
		// The block that ended the run, and what follows it as long as it is no plain run again.
		for (int Count = 0; At != End && Count < 8; ++Count)
		{
			const char32_t Code = ReadCodePoint(At, End);
			bValid &= Code != Malformed;
			To = WriteUtf16(To, Code == Malformed ? 0xFFFD : Code);
		}
		if (!bValid && bStrict)
		{
			break;
		}
	}
	Out.resize(static_cast<SIZE_T>(To - Out.data()));
	return bValid;
}

char* WriteUtf8(char* Out, char32_t Code)
{
	if (Code < 0x80)
	{
		*Out++ = static_cast<char>(Code);
		return Out;
	}
	const int Following = Code < 0x800 ? 1 : (Code < 0x10000 ? 2 : 3);
	static constexpr uint8 LeadMarks[] = { 0, 0xC0, 0xE0, 0xF0 };
	*Out++ = static_cast<char>(LeadMarks[Following] | (Code >> (6 * Following)));
	for (int Shift = 6 * (Following - 1); Shift >= 0; Shift -= 6)
	{
		*Out++ = static_cast<char>(0x80 | ((Code >> Shift) & 0x3F));
	}
	return Out;
}

char32_t ReadUtf16(const TCHAR*& At, const TCHAR* End)
{
	const TCHAR Unit = *At++;
	if (Unit < 0xD800 || Unit > 0xDFFF)
	{
		return Unit;
	}
	if (Unit < 0xDC00 && At != End && *At >= 0xDC00 && *At <= 0xDFFF)
	{
		return 0x10000 + ((static_cast<char32_t>(Unit) - 0xD800) << 10) + (*At++ - 0xDC00);
	}
	return 0xFFFD;
}
}

void FUtf8::AppendTo(std::u16string& Out, std::string_view Bytes)
{
	::Decode(Out, Bytes, false);
}

FString FUtf8::Decode(std::string_view Bytes)
{
	FString Result;
	::Decode(Result.Native(), Bytes, false);
	return Result;
}

bool FUtf8::TryDecode(std::string_view Bytes, FString& Out)
{
	Out.Reset();
	return ::Decode(Out.Native(), Bytes, true);
}

void FUtf8::AppendTo(std::string& Out, std::u16string_view Text)
{
	const TCHAR* At = Text.data();
	const TCHAR* const End = At + Text.size();
	char Buffer[4096];
	char* To = Buffer;
	while (At != End)
	{
		// A code unit gives at most three bytes, a pair four.
		const SIZE_T Room = static_cast<SIZE_T>(Buffer + sizeof(Buffer) - To);
		if (Room < 64)
		{
			Out.append(Buffer, To);
			To = Buffer;
			continue;
		}
		const SIZE_T Ascii = AsciiBlocks(At, std::min(Room, static_cast<SIZE_T>(End - At)));
		for (SIZE_T Index = 0; Index < Ascii; ++Index)
		{
			To[Index] = static_cast<char>(At[Index]);
		}
		At += Ascii;
		To += Ascii;
		for (int Count = 0; At != End && Count < 8 && Buffer + sizeof(Buffer) - To >= 4; ++Count)
		{
			To = WriteUtf8(To, ReadUtf16(At, End));
		}
	}
	Out.append(Buffer, To);
}

std::string FUtf8::Encode(std::u16string_view Text)
{
	std::string Result;
	Result.reserve(Text.size());
	AppendTo(Result, Text);
	return Result;
}

std::string FUtf8::Encode(const FString& Text)
{
	return Encode(Text.View());
}
