#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <cstdarg>
#include <cstdio>

namespace
{
/** One "%..." of a format: flags, width and precision as written, the length modifier, the conversion. */
struct FConversion
{
	std::string Head = "%";
	std::string Length;
	char Kind = 0;
	int Precision = -1;
	int Width = 0;
	bool bLeft = false;
};

class FFormatter
{
public:
	FFormatter(const TCHAR* InFormat, va_list& InArguments)
		: At(InFormat)
		, Arguments(InArguments)
	{
	}

	FString Run()
	{
		while (*At)
		{
			const TCHAR* const Literal = At;
			while (*At && *At != '%')
			{
				++At;
			}
			Out.append(Literal, At);
			if (*At == '%')
			{
				++At;
				Convert(ReadConversion());
			}
		}
		return FString(std::move(Out));
	}

private:
	static bool IsOneOf(TCHAR Char, const char* Set)
	{
		return Char && Char < 128 && std::string_view(Set).find(static_cast<char>(Char)) != std::string_view::npos;
	}

	int ReadNumber(FConversion& Conversion)
	{
		int Number = 0;
		if (*At == '*')
		{
			++At;
			Number = va_arg(Arguments, int);
			Conversion.Head += std::to_string(Number);
			return Number;
		}
		for (; FChar::IsDigit(*At); ++At)
		{
			Number = Number * 10 + (*At - '0');
			Conversion.Head += static_cast<char>(*At);
		}
		return Number;
	}

	FConversion ReadConversion()
	{
		FConversion Conversion;
		for (; IsOneOf(*At, "-+ #0"); ++At)
		{
			Conversion.bLeft |= *At == '-';
			Conversion.Head += static_cast<char>(*At);
		}
		Conversion.Width = ReadNumber(Conversion);
		if (*At == '.')
		{
			++At;
			Conversion.Head += '.';
			Conversion.Precision = ReadNumber(Conversion);
		}
		for (; IsOneOf(*At, "hljzt"); ++At)
		{
			Conversion.Length += static_cast<char>(*At);
		}
		if (At[0] == 'I' && At[1] == '6' && At[2] == '4')
		{
			At += 3;
			Conversion.Length = "ll";
		}
		Conversion.Kind = static_cast<char>(*At);
		if (*At)
		{
			++At;
		}
		return Conversion;
	}

	void Convert(const FConversion& Conversion)
	{
		switch (Conversion.Kind)
		{
		case '%': Out.push_back('%'); break;
		case 's': ConvertText(Conversion); break;
		case 'c': Pad(Conversion, std::u16string(1, static_cast<TCHAR>(va_arg(Arguments, int)))); break;
		case 'd':
		case 'i':
		case 'u':
		case 'x':
		case 'X':
		case 'o': ConvertInteger(Conversion); break;
		case 'f':
		case 'F':
		case 'e':
		case 'E':
		case 'g':
		case 'G': ConvertNumber(Conversion, "", va_arg(Arguments, double)); break;
		case 'p': ConvertNumber(Conversion, "", va_arg(Arguments, void*)); break;
		default: break;
		}
	}

	void ConvertText(const FConversion& Conversion)
	{
		std::u16string Text;
		if (Conversion.Length == "h")
		{
			const char* const Bytes = va_arg(Arguments, const char*);
			FUtf8::AppendTo(Text, Bytes ? Bytes : "(null)");
		}
		else
		{
			const TCHAR* const Chars = va_arg(Arguments, const TCHAR*);
			Text = Chars ? Chars : u"(null)";
		}
		if (Conversion.Precision >= 0)
		{
			Text = Text.substr(0, static_cast<SIZE_T>(Conversion.Precision));
		}
		Pad(Conversion, Text);
	}

	void Pad(const FConversion& Conversion, const std::u16string& Text)
	{
		const int Missing = std::max(0, std::abs(Conversion.Width) - static_cast<int>(Text.size()));
		const std::u16string Blanks(static_cast<SIZE_T>(Missing), ' ');
		const bool bLeft = Conversion.bLeft || Conversion.Width < 0;
		Out.append(bLeft ? Text : Blanks).append(bLeft ? Blanks : Text);
	}

	void ConvertInteger(const FConversion& Conversion)
	{
		const std::string& Length = Conversion.Length;
		const bool bLong = Length == "l" || Length == "ll" || Length == "z" || Length == "j" || Length == "t";
		if (bLong)
		{
			ConvertNumber(Conversion, "ll", va_arg(Arguments, long long));
		}
		else
		{
			ConvertNumber(Conversion, "", va_arg(Arguments, int));
		}
	}

	template <typename NumberType>
	void ConvertNumber(const FConversion& Conversion, const char* Length, NumberType Number)
	{
		const std::string Spec = Conversion.Head + Length + Conversion.Kind;
		char Short[64];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
		const int Needed = std::snprintf(Short, sizeof(Short), Spec.c_str(), Number);
		if (Needed < static_cast<int>(sizeof(Short)))
		{
			FUtf8::AppendTo(Out, Short);
			return;
		}
		std::string Long(static_cast<SIZE_T>(Needed) + 1, '\0');
		std::snprintf(Long.data(), Long.size(), Spec.c_str(), Number);
#pragma GCC diagnostic pop
		Long.pop_back();
		FUtf8::AppendTo(Out, Long);
	}

	const TCHAR* At;
	va_list& Arguments;
	std::u16string Out;
};
}

FString FString::PrintfImpl(const TCHAR* Format, ...)
{
	va_list Arguments;
	va_start(Arguments, Format);
	FString Result = FFormatter(Format, Arguments).Run();
	va_end(Arguments);
	return Result;
}
