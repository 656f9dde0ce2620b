#pragma once

#include "Dom/JsonValue.h"

/**
 * Reads a document from a text. The grammar is strict JSON with two allowances: control characters may stand in strings, and
 * the words true, false and null may be in any case. A document nested deeper than MaxDepth is refused.
 */
template <typename CharType = TCHAR>
class TJsonReader;

template <>
class JSON_API TJsonReader<TCHAR>
{
public:
	static constexpr int32 MaxDepth = 1024;

	/** The text must outlive the reader. */
	explicit TJsonReader(const FString& InText)
		: Text(InText)
	{
	}
	explicit TJsonReader(FString&& InText)
		: OwnText(MoveTemp(InText))
		, Text(OwnText)
	{
	}
	UE_NONCOPYABLE(TJsonReader)

	/** Reads the whole text; null, with an error message, when it is no JSON document. */
	TSharedPtr<FJsonValue> Read();
	/** What was wrong and where ("Line: 1 Ch: 5"); empty when nothing was. */
	const FString& GetErrorMessage() const { return ErrorMessage; }

private:
	FString OwnText;
	const FString& Text;
	FString ErrorMessage;
};

template <typename CharType = TCHAR>
struct TJsonReaderFactory
{
	/** A text that is not handed over must outlive the reader. */
	static TSharedRef<TJsonReader<CharType>> Create(const FString& Text) { return MakeShared<TJsonReader<CharType>>(Text); }
	static TSharedRef<TJsonReader<CharType>> Create(FString&& Text) { return MakeShared<TJsonReader<CharType>>(MoveTemp(Text)); }
};
