#pragma once

#include "Dom/JsonValue.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Policies/PrettyJsonPrintPolicy.h"

/** How values are spelled, whatever the policy. */
struct JSON_API FJsonText
{
	/** With quotation marks; escapes what JSON requires, everything else as it is. */
	static void AppendString(FString& Out, const FString& Text);
	/** Up to 17 significant digits; a number that JSON has no form for is written as null. */
	static void AppendNumber(FString& Out, double Number);
};

/**
 * Writes a document to a text, value by value. A value inside an object has an identifier, one inside an array has none.
 * Objects and strings in a pretty array stand one to a line; numbers, booleans and nulls share one.
 */
template <typename CharType = TCHAR, typename PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriter
{
public:
	explicit TJsonWriter(FString* InOut)
		: Out(*InOut)
	{
	}

	void WriteObjectStart() { StartBlock('{'); }
	void WriteObjectStart(const FString& Identifier)
	{
		WriteKey(Identifier);
		PrintPolicy::WriteLineTerminator(Out);
		PrintPolicy::WriteTabs(Out, Depth);
		OpenBlock('{');
	}
	void WriteObjectEnd()
	{
		--Depth;
		PrintPolicy::WriteLineTerminator(Out);
		PrintPolicy::WriteTabs(Out, Depth);
		EndBlock('}');
	}
	void WriteArrayStart() { StartBlock('['); }
	void WriteArrayStart(const FString& Identifier)
	{
		WriteKey(Identifier);
		PrintPolicy::WriteSpace(Out);
		OpenBlock('[');
	}
	void WriteArrayEnd()
	{
		--Depth;
		if (Previous == EItem::Inline)
		{
			PrintPolicy::WriteSpace(Out);
		}
		else if (Previous == EItem::Line)
		{
			PrintPolicy::WriteLineTerminator(Out);
			PrintPolicy::WriteTabs(Out, Depth);
		}
		EndBlock(']');
	}

	template <typename ValueType>
	void WriteValue(const FString& Identifier, const ValueType& Value)
	{
		WriteKey(Identifier);
		PrintPolicy::WriteSpace(Out);
		Append(Value);
		Previous = EItem::Line;
	}
	/** Inside an array. */
	template <typename ValueType>
	void WriteValue(const ValueType& Value)
	{
		constexpr bool bOwnLine = !std::is_arithmetic_v<ValueType> && !std::is_null_pointer_v<ValueType>;
		StartItem(bOwnLine ? EItem::Line : EItem::Inline);
		Append(Value);
		Previous = bOwnLine ? EItem::Line : EItem::Inline;
	}
	void WriteNull(const FString& Identifier) { WriteValue(Identifier, nullptr); }
	void WriteNull() { WriteValue(nullptr); }

	/** In characters, of what is written so far. */
	int64 GetLength() const { return Out.Len(); }
	/** Makes room for about as many more characters. */
	void Reserve(int64 More) { Out.Native().reserve(static_cast<SIZE_T>(GetLength() + More + More / 8)); }
	/** @return whether every block was ended */
	bool Close() { return Depth == 0; }

private:
	/** What stands before the place of writing, in the same block. */
	enum class EItem : uint8
	{
		None,
		Inline,
		Line
	};

	void Append(const FString& Value) { FJsonText::AppendString(Out, Value); }
	void Append(const TCHAR* Value) { FJsonText::AppendString(Out, Value); }
	void Append(std::nullptr_t) { Out += TEXT("null"); }
	template <typename NumberType>
	requires std::is_arithmetic_v<NumberType>
	void Append(NumberType Value)
	{
		if constexpr (std::is_same_v<NumberType, bool>)
		{
			Out += Value ? TEXT("true") : TEXT("false");
		}
		else
		{
			FJsonText::AppendNumber(Out, static_cast<double>(Value));
		}
	}

	void StartItem(EItem Kind)
	{
		if (Previous != EItem::None)
		{
			Out.AppendChar(',');
		}
		if (Depth == 0)
		{
			return;
		}
		if (Kind == EItem::Line || Previous == EItem::Line)
		{
			PrintPolicy::WriteLineTerminator(Out);
			PrintPolicy::WriteTabs(Out, Depth);
		}
		else
		{
			PrintPolicy::WriteSpace(Out);
		}
	}

	void WriteKey(const FString& Identifier)
	{
		StartItem(EItem::Line);
		FJsonText::AppendString(Out, Identifier);
		Out.AppendChar(':');
	}

	void StartBlock(TCHAR Mark)
	{
		StartItem(EItem::Line);
		OpenBlock(Mark);
	}

	void OpenBlock(TCHAR Mark)
	{
		Out.AppendChar(Mark);
		++Depth;
		Previous = EItem::None;
	}

	void EndBlock(TCHAR Mark)
	{
		Out.AppendChar(Mark);
		Previous = EItem::Line;
	}

	FString& Out;
	/** How many blocks are open. */
	int32 Depth = 0;
	EItem Previous = EItem::None;
};

template <typename CharType = TCHAR, typename PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
struct TJsonWriterFactory
{
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* Out)
	{
		return MakeShared<TJsonWriter<CharType, PrintPolicy>>(Out);
	}
};
