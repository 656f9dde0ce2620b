#include "Serialization/JsonReader.h"

#include "Dom/JsonObject.h"
#include "PlainText.h"
#include "ValueArena.h"

#include <charconv>

namespace
{
bool IsBlank(TCHAR Char)
{
	return Char == ' ' || Char == '\n' || Char == '\r' || Char == '\t';
}

int32 HexValue(TCHAR Char)
{
	if (FChar::IsDigit(Char))
	{
		return Char - '0';
	}
	return FChar::IsHexDigit(Char) ? (Char | 32) - 'a' + 10 : INDEX_NONE;
}

/** 10 to the powers that a double holds exactly. */
constexpr double ExactPowers[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18,
	1e19, 1e20, 1e21, 1e22 };

/** Makes the values of one document. */
class FValueMaker
{
public:
	explicit FValueMaker(SIZE_T ExpectedBytes)
		: Arena(*new FValueArena(ExpectedBytes))
	{
	}
	~FValueMaker() { Arena.Release(); }
	UE_NONCOPYABLE(FValueMaker)

	template <typename T, typename... ArgTypes>
	TSharedPtr<T> Make(ArgTypes&&... Args) const
	{
		return TSharedPtr<T>(std::allocate_shared<T>(TArenaAllocator<T>(Arena), Forward<ArgTypes>(Args)...));
	}

private:
	FValueArena& Arena;
};

/**
 * Values never change, so equal ones may be one: the words, and short texts that come again soon, such as the "#" of a file tree
 * and the types of a list's items.
 */
class FSharedValues
{
public:
	explicit FSharedValues(const FValueMaker& InMaker)
		: Maker(InMaker)
		, True(Maker.Make<FJsonValueBoolean>(true))
		, False(Maker.Make<FJsonValueBoolean>(false))
		, Nothing(Maker.Make<FJsonValueNull>())
	{
	}

	const TSharedPtr<FJsonValue>& Boolean(bool bValue) const { return bValue ? True : False; }
	const TSharedPtr<FJsonValue>& Null() const { return Nothing; }

	TSharedPtr<FJsonValue> String(FString&& Text)
	{
		if (Text.Len() > LongestShared)
		{
			return Maker.Make<FJsonValueString>(MoveTemp(Text));
		}
		TSharedPtr<FJsonValueString>& Recent = Recents[SlotOf(Text.View())];
		if (!Recent.IsValid() || !Recent->Get().Equals(Text))
		{
			Recent = Maker.Make<FJsonValueString>(MoveTemp(Text));
		}
		return Recent;
	}

private:
	static constexpr int32 LongestShared = 16;
	static constexpr SIZE_T Slots = 32;

	static SIZE_T SlotOf(std::u16string_view Text)
	{
		return Text.empty() ? 0 : (Text.size() * 7 + Text.front() * 3u + Text.back()) % Slots;
	}

	const FValueMaker& Maker;
	const TSharedPtr<FJsonValue> True;
	const TSharedPtr<FJsonValue> False;
	const TSharedPtr<FJsonValue> Nothing;
	TSharedPtr<FJsonValueString> Recents[Slots];
};

/** One pass over the text; the first error ends it. The text ends in a zero, which no rule accepts. */
class FParser
{
public:
	explicit FParser(const FString& Text)
		: Begin(Text.begin())
		, End(Text.end())
		, At(Text.begin())
		, Maker(static_cast<SIZE_T>(Text.Len()) * 2)
		, Shared(Maker)
	{
	}

	TSharedPtr<FJsonValue> ReadDocument()
	{
		SkipBlanks();
		if (At == End || (*At != '{' && *At != '['))
		{
			return Fail(TEXT("Open Curly or Square Brace token expected, but not found."));
		}
		TSharedPtr<FJsonValue> Root = ReadValue();
		SkipBlanks();
		if (Root.IsValid() && At != End)
		{
			return Fail(TEXT("Unexpected additional input found after the document."));
		}
		return Root;
	}

	/** Empty when nothing was wrong. */
	FString ErrorMessage() const
	{
		if (!Error)
		{
			return FString();
		}
		int32 Line = 1;
		const TCHAR* LineStart = Begin;
		for (const TCHAR* Char = Begin; Char != At; ++Char)
		{
			if (*Char == '\n')
			{
				++Line;
				LineStart = Char + 1;
			}
		}
		return FString::Printf(TEXT("%s Line: %d Ch: %d"), Error, Line, static_cast<int32>(At - LineStart) + 1);
	}

private:
	TSharedPtr<FJsonValue> Fail(const TCHAR* Message)
	{
		if (!Error)
		{
			Error = Message;
		}
		return nullptr;
	}

	void SkipBlanks()
	{
		while (At != End && IsBlank(*At))
		{
			++At;
		}
	}

	bool Take(TCHAR Char)
	{
		SkipBlanks();
		if (At == End || *At != Char)
		{
			return false;
		}
		++At;
		return true;
	}

	TSharedPtr<FJsonValue> ReadValue()
	{
		SkipBlanks();
		if (At == End)
		{
			return Fail(TEXT("Unexpected end of the text."));
		}
		switch (*At)
		{
		case '{': return ReadNested(&FParser::ReadObject);
		case '[': return ReadNested(&FParser::ReadArray);
		case '"':
		{
			FString Text;
			return ReadString(Text) ? Shared.String(MoveTemp(Text)) : nullptr;
		}
		case 't':
		case 'T': return ReadWord(u"true", Shared.Boolean(true));
		case 'f':
		case 'F': return ReadWord(u"false", Shared.Boolean(false));
		case 'n':
		case 'N': return ReadWord(u"null", Shared.Null());
		default: return ReadNumber();
		}
	}

	TSharedPtr<FJsonValue> ReadNested(TSharedPtr<FJsonValue> (FParser::*Read)())
	{
		if (Depth == TJsonReader<TCHAR>::MaxDepth)
		{
			return Fail(TEXT("The document is nested too deep."));
		}
		++Depth;
		++At;
		TSharedPtr<FJsonValue> Value = (this->*Read)();
		--Depth;
		return Value;
	}

	TSharedPtr<FJsonValue> ReadObject()
	{
		const int32 First = Fields.Num();
		if (Take('}'))
		{
			return MakeObject(First);
		}
		do
		{
			SkipBlanks();
			FString Key;
			if (At == End || *At != '"')
			{
				return Fail(TEXT("String token expected, but not found."));
			}
			if (!ReadString(Key))
			{
				return nullptr;
			}
			if (!Take(':'))
			{
				return Fail(TEXT("Colon token expected, but not found."));
			}
			TSharedPtr<FJsonValue> Value = ReadValue();
			if (!Value.IsValid())
			{
				return nullptr;
			}
			Fields.Add({ MoveTemp(Key), MoveTemp(Value) });
		} while (Take(','));
		if (!Take('}'))
		{
			return Fail(TEXT("Close Curly Brace token expected, but not found."));
		}
		return MakeObject(First);
	}

	/** Takes the fields from First on. */
	TSharedPtr<FJsonValue> MakeObject(int32 First)
	{
		TSharedPtr<FJsonObject> Object = Maker.Make<FJsonObject>();
		Object->Values.Reserve(Fields.Num() - First);
		for (int32 Index = First; Index < Fields.Num(); ++Index)
		{
			Object->Values.Add(MoveTemp(Fields[Index].Key), MoveTemp(Fields[Index].Value));
		}
		Fields.SetNum(First);
		return Maker.Make<FJsonValueObject>(MoveTemp(Object));
	}

	TSharedPtr<FJsonValue> ReadArray()
	{
		const int32 First = Items.Num();
		if (Take(']'))
		{
			return MakeArray(First);
		}
		do
		{
			TSharedPtr<FJsonValue> Value = ReadValue();
			if (!Value.IsValid())
			{
				return nullptr;
			}
			Items.Add(MoveTemp(Value));
		} while (Take(','));
		if (!Take(']'))
		{
			return Fail(TEXT("Close Square Brace token expected, but not found."));
		}
		return MakeArray(First);
	}

	/** Takes the items from First on. */
	TSharedPtr<FJsonValue> MakeArray(int32 First)
	{
		TArray<TSharedPtr<FJsonValue>> Array;
		Array.Reserve(Items.Num() - First);
		for (int32 Index = First; Index < Items.Num(); ++Index)
		{
			Array.Add(MoveTemp(Items[Index]));
		}
		Items.SetNum(First);
		return Maker.Make<FJsonValueArray>(MoveTemp(Array));
	}

	TSharedPtr<FJsonValue> ReadWord(std::u16string_view Word, const TSharedPtr<FJsonValue>& Value)
	{
		const std::u16string_view Rest(At, static_cast<SIZE_T>(End - At));
		if (!FString::EqualsIgnoringCase(Rest.substr(0, Word.size()), Word))
		{
			return Fail(TEXT("Invalid Json Token."));
		}
		At += Word.size();
		return Value;
	}

	bool ReadString(FString& Out)
	{
		const TCHAR* Run = ++At;
		SkipPlain();
		if (At != End && *At == '"')
		{
			Out = FString(static_cast<int32>(At - Run), Run);
			++At;
			return true;
		}
		while (At != End && *At != '"')
		{
			Out.AppendChars(Run, static_cast<int32>(At - Run));
			++At; // the backslash
			if (!ReadEscape(Out))
			{
				Fail(TEXT("Bad Json escaped char."));
				return false;
			}
			Run = At;
			SkipPlain();
		}
		if (At == End)
		{
			Fail(TEXT("String Token Abruptly Ended."));
			return false;
		}
		Out.AppendChars(Run, static_cast<int32>(At - Run));
		++At;
		return true;
	}

	void SkipPlain()
	{
		// A control character stands for itself.
		for (At = FindSpecial(At, End); At != End && *At < 0x20; At = FindSpecial(At + 1, End))
		{
		}
	}

	bool ReadEscape(FString& Out)
	{
		if (At == End)
		{
			return false;
		}
		switch (*At++)
		{
		case '"': Out.AppendChar('"'); return true;
		case '\\': Out.AppendChar('\\'); return true;
		case '/': Out.AppendChar('/'); return true;
		case 'b': Out.AppendChar('\b'); return true;
		case 'f': Out.AppendChar('\f'); return true;
		case 'n': Out.AppendChar('\n'); return true;
		case 'r': Out.AppendChar('\r'); return true;
		case 't': Out.AppendChar('\t'); return true;
		case 'u': return ReadUnicodeEscape(Out);
		default: return false;
		}
	}

	/** Surrogates come one by one, as the escapes give them. */
	bool ReadUnicodeEscape(FString& Out)
	{
		int32 Code = 0;
		for (int32 Index = 0; Index < 4; ++Index, ++At)
		{
			const int32 Digit = At == End ? INDEX_NONE : HexValue(*At);
			if (Digit == INDEX_NONE)
			{
				return false;
			}
			Code = Code * 16 + Digit;
		}
		Out.AppendChar(static_cast<TCHAR>(Code));
		return true;
	}

	/** @return how many digits were taken in */
	int32 ReadDigits(uint64& Mantissa)
	{
		const TCHAR* const First = At;
		for (; At != End && FChar::IsDigit(*At); ++At)
		{
			Mantissa = Mantissa * 10 + static_cast<uint64>(*At - '0');
		}
		return static_cast<int32>(At - First);
	}

	TSharedPtr<FJsonValue> ReadNumber()
	{
		const bool bNegative = *At == '-';
		At += bNegative;
		const TCHAR* const FirstDigit = At;
		uint64 Mantissa = 0;
		int32 Digits = ReadDigits(Mantissa);
		if (Digits == 0 || (Digits > 1 && *FirstDigit == '0'))
		{
			return Fail(TEXT("Invalid Json Token."));
		}
		int32 Exponent = 0;
		if (At != End && *At == '.')
		{
			++At;
			const int32 Fraction = ReadDigits(Mantissa);
			if (Fraction == 0)
			{
				return Fail(TEXT("Poorly formed Json Number Token."));
			}
			Digits += Fraction;
			Exponent = -Fraction;
		}
		bool bSimple = Digits <= 15 && Exponent >= -22;
		if (At != End && (*At == 'e' || *At == 'E'))
		{
			bSimple = false;
			++At;
			At += At != End && (*At == '+' || *At == '-');
			uint64 Ignored = 0;
			if (ReadDigits(Ignored) == 0)
			{
				return Fail(TEXT("Poorly formed Json Number Token."));
			}
		}
		const double Size = bSimple ? static_cast<double>(Mantissa) / ExactPowers[-Exponent] : Convert(FirstDigit);
		return Maker.Make<FJsonValueNumber>(bNegative ? -Size : Size);
	}

	/** The number between First and here, by the library's exact conversion. */
	double Convert(const TCHAR* First) const
	{
		std::string Ascii(First, At);
		double Number = 0.0;
		const std::from_chars_result Result = std::from_chars(Ascii.data(), Ascii.data() + Ascii.size(), Number);
		// Beyond a double's range the C library's answers are wanted: infinity, or the smallest numbers.
		return Result.ec == std::errc::result_out_of_range ? std::strtod(Ascii.c_str(), nullptr) : Number;
	}

	const TCHAR* Begin;
	const TCHAR* End;
	const TCHAR* At;
	const TCHAR* Error = nullptr;
	int32 Depth = 0;
	const FValueMaker Maker;
	FSharedValues Shared;
	// What the open objects and arrays hold so far, innermost last: each is made in one piece when it closes.
	TArray<TPair<FString, TSharedPtr<FJsonValue>>> Fields;
	TArray<TSharedPtr<FJsonValue>> Items;
};
}

TSharedPtr<FJsonValue> TJsonReader<TCHAR>::Read()
{
	FParser Parser(Text);
	TSharedPtr<FJsonValue> Root = Parser.ReadDocument();
	ErrorMessage = Parser.ErrorMessage();
	return Root;
}
