#pragma once

#include "Containers/UnrealString.h"

#include <string>
#include <string_view>

/** UTF-8 bytes to and from UTF-16 text, whole buffers at a time. */
struct CORE_API FUtf8
{
	/** Appends the text; a byte that is no UTF-8 becomes U+FFFD. */
	static void AppendTo(std::u16string& Out, std::string_view Bytes);
	static FString Decode(std::string_view Bytes);
	/** As Decode, but false, with Out in no certain state, when any byte is no UTF-8. */
	static bool TryDecode(std::string_view Bytes, FString& Out);
	/** Appends the bytes; half of a surrogate pair becomes U+FFFD. */
	static void AppendTo(std::string& Out, std::u16string_view Text);
	static std::string Encode(std::u16string_view Text);
	static std::string Encode(const FString& Text);
};

class FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Text)
		: Bytes(FUtf8::Encode(std::u16string_view(Text)))
	{
	}
	FTCHARToUTF8(const TCHAR* Text, int32 Len)
		: Bytes(FUtf8::Encode(std::u16string_view(Text, static_cast<SIZE_T>(Len))))
	{
	}
	const ANSICHAR* Get() const { return Bytes.c_str(); }
	/** In bytes. */
	int32 Length() const { return static_cast<int32>(Bytes.size()); }

private:
	std::string Bytes;
};

class FUTF8ToTCHAR
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* InBytes)
		: Text(FUtf8::Decode(InBytes))
	{
	}
	FUTF8ToTCHAR(const ANSICHAR* InBytes, int32 Len)
		: Text(FUtf8::Decode(std::string_view(InBytes, static_cast<SIZE_T>(Len))))
	{
	}
	const TCHAR* Get() const { return *Text; }
	int32 Length() const { return Text.Len(); }

private:
	FString Text;
};

// Both live until the end of the statement.
#define TCHAR_TO_UTF8(Text) (FTCHARToUTF8(Text).Get())
#define UTF8_TO_TCHAR(Bytes) (FUTF8ToTCHAR(Bytes).Get())
#define TCHAR_TO_ANSI(Text) TCHAR_TO_UTF8(Text)
#define ANSI_TO_TCHAR(Bytes) UTF8_TO_TCHAR(Bytes)
