#include "Misc/CString.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <cstdlib>
#include <limits>

namespace
{
using FTraits = std::char_traits<TCHAR>;

/** The number's characters as the C library reads them; no number has a character beyond ASCII. */
std::string AsciiHead(const TCHAR* String)
{
	std::string Head;
	while (FChar::IsWhitespace(*String))
	{
		++String;
	}
	for (; *String && *String < 128; ++String)
	{
		Head.push_back(static_cast<char>(*String));
	}
	return Head;
}

int32 CompareIgnoringCase(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	for (; Count > 0; --Count, ++A, ++B)
	{
		const TCHAR LowA = FChar::ToLower(*A);
		const TCHAR LowB = FChar::ToLower(*B);
		if (LowA != LowB)
		{
			return LowA < LowB ? -1 : 1;
		}
		if (!LowA)
		{
			break;
		}
	}
	return 0;
}

int64 ParseInteger(const TCHAR* Start, TCHAR** End, int32 Base)
{
	const TCHAR* Digits = Start;
	while (FChar::IsWhitespace(*Digits))
	{
		++Digits;
	}
	const std::string Head = AsciiHead(Digits);
	char* HeadEnd = nullptr;
	const int64 Value = std::strtoll(Head.c_str(), &HeadEnd, Base);
	if (End)
	{
		const std::ptrdiff_t Read = HeadEnd - Head.c_str();
		*End = const_cast<TCHAR*>(Read ? Digits + Read : Start);
	}
	return Value;
}

int32 Clamp32(int64 Value)
{
	using FLimits = std::numeric_limits<int32>;
	return static_cast<int32>(std::min<int64>(std::max<int64>(Value, FLimits::min()), FLimits::max()));
}
}

int32 FCString::Strlen(const TCHAR* String)
{
	return static_cast<int32>(FTraits::length(String));
}

int32 FCString::Strcmp(const TCHAR* A, const TCHAR* B)
{
	return std::u16string_view(A).compare(B);
}

int32 FCString::Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return std::u16string_view(A).substr(0, Count).compare(std::u16string_view(B).substr(0, Count));
}

int32 FCString::Stricmp(const TCHAR* A, const TCHAR* B)
{
	return CompareIgnoringCase(A, B, std::numeric_limits<SIZE_T>::max());
}

int32 FCString::Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return CompareIgnoringCase(A, B, Count);
}

const TCHAR* FCString::Strstr(const TCHAR* String, const TCHAR* Find)
{
	const SIZE_T Found = std::u16string_view(String).find(Find);
	return Found == std::u16string_view::npos ? nullptr : String + Found;
}

const TCHAR* FCString::Stristr(const TCHAR* String, const TCHAR* Find)
{
	const int32 Found = FString(String).Find(Find);
	return Found == INDEX_NONE ? nullptr : String + Found;
}

const TCHAR* FCString::Strchr(const TCHAR* String, TCHAR Char)
{
	return FTraits::find(String, static_cast<SIZE_T>(Strlen(String)) + 1, Char);
}

int32 FCString::Atoi(const TCHAR* String)
{
	return Clamp32(ParseInteger(String, nullptr, 10));
}

int64 FCString::Atoi64(const TCHAR* String)
{
	return ParseInteger(String, nullptr, 10);
}

float FCString::Atof(const TCHAR* String)
{
	return static_cast<float>(Atod(String));
}

double FCString::Atod(const TCHAR* String)
{
	return std::strtod(AsciiHead(String).c_str(), nullptr);
}

int32 FCString::Strtoi(const TCHAR* Start, TCHAR** End, int32 Base)
{
	return Clamp32(ParseInteger(Start, End, Base));
}

int64 FCString::Strtoi64(const TCHAR* Start, TCHAR** End, int32 Base)
{
	return ParseInteger(Start, End, Base);
}

bool FCString::ToBool(const TCHAR* String)
{
	for (const TCHAR* Word : { TEXT("true"), TEXT("yes"), TEXT("on") })
	{
		if (Stricmp(String, Word) == 0)
		{
			return true;
		}
	}
	return Atoi(String) != 0;
}

bool FCString::IsNumeric(const TCHAR* String)
{
	if (*String == '-' || *String == '+')
	{
		++String;
	}
	bool bPoint = false;
	bool bDigit = false;
	for (; *String; ++String)
	{
		if (*String == '.' && !bPoint)
		{
			bPoint = true;
		}
		else if (FChar::IsDigit(*String))
		{
			bDigit = true;
		}
		else
		{
			return false;
		}
	}
	return bDigit;
}
