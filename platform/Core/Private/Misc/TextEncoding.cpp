#include "Misc/TextEncoding.h"

#include "Containers/StringConv.h"

#include <bit>
#include <cstring>

namespace
{
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16LittleMark = "\xFF\xFE";
constexpr std::string_view Utf16BigMark = "\xFE\xFF";
static_assert(std::endian::native == std::endian::little);

/** A byte without its other half at the end is left out. */
FString DecodeUtf16(std::string_view Bytes, bool bBigEndian)
{
	std::u16string Text(Bytes.size() / 2, u'\0');
	std::memcpy(Text.data(), Bytes.data(), Text.size() * 2);
	if (bBigEndian)
	{
		for (TCHAR& Char : Text)
		{
			Char = static_cast<TCHAR>(__builtin_bswap16(Char));
		}
	}
	return FString(std::move(Text));
}

FString DecodeLatin1(std::string_view Bytes)
{
	std::u16string Text(Bytes.size(), u'\0');
	std::transform(Bytes.begin(), Bytes.end(), Text.begin(), [](char Byte) { return static_cast<uint8>(Byte); });
	return FString(std::move(Text));
}

std::string EncodeLatin1(std::u16string_view Text)
{
	std::string Bytes(Text.size(), '\0');
	std::transform(Text.begin(), Text.end(), Bytes.begin(), [](TCHAR Char) { return Char < 256 ? static_cast<char>(Char) : '?'; });
	return Bytes;
}

std::string EncodeUtf8(std::u16string_view Text, bool bWithMark)
{
	std::string Bytes(bWithMark ? Utf8Mark : std::string_view());
	FUtf8::AppendTo(Bytes, Text);
	return Bytes;
}

std::string EncodeUtf16(std::u16string_view Text, bool bWithMark)
{
	std::string Bytes(bWithMark ? Utf16LittleMark : std::string_view());
	return Bytes.append(reinterpret_cast<const char*>(Text.data()), Text.size() * 2);
}
}

FString DecodeText(std::string_view Bytes)
{
	if (Bytes.starts_with(Utf16LittleMark) || Bytes.starts_with(Utf16BigMark))
	{
		return DecodeUtf16(Bytes.substr(2), Bytes.starts_with(Utf16BigMark));
	}
	if (Bytes.starts_with(Utf8Mark))
	{
		return FUtf8::Decode(Bytes.substr(Utf8Mark.size()));
	}
	FString Text;
	return FUtf8::TryDecode(Bytes, Text) ? Text : DecodeLatin1(Bytes);
}

std::string EncodeText(const FString& Text, FFileHelper::EEncodingOptions Encoding, bool bWithMark)
{
	using enum FFileHelper::EEncodingOptions;
	switch (Encoding)
	{
	case ForceAnsi: return EncodeLatin1(Text.View());
	case ForceUnicode: return EncodeUtf16(Text.View(), bWithMark);
	case ForceUTF8: return EncodeUtf8(Text.View(), bWithMark);
	case AutoDetect:
	case ForceUTF8WithoutBOM: break;
	}
	return EncodeUtf8(Text.View(), false);
}
