#include "Defaults.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace
{
using Text = std::optional<std::string>;

// All tokens in one string, for comparing; "FVector::ZeroVector".
std::string Join(const std::vector<Token>& Tokens)
{
	std::string Result;
	for (const Token& Each : Tokens)
	{
		Result += Each.Text;
	}
	return Result;
}

// A number with its sign, without suffix and separators.
std::optional<double> ReadNumber(std::string Digits)
{
	std::erase(Digits, '\'');
	while (!Digits.empty() && std::string_view("fFuUlL").find(Digits.back()) != std::string_view::npos)
	{
		Digits.pop_back();
	}
	double Number = 0;
	const std::from_chars_result Result = std::from_chars(Digits.data(), Digits.data() + Digits.size(), Number);
	return Result.ec == std::errc() && Result.ptr == Digits.data() + Digits.size() ? std::optional(Number) : std::nullopt;
}

std::string FormatReal(double Number)
{
	std::array<char, 400> Buffer{};
	std::snprintf(Buffer.data(), Buffer.size(), "%f", Number);
	return Buffer.data();
}

Text ConvertInteger(const std::vector<Token>& Tokens)
{
	const std::string Joined = Join(Tokens);
	if (Joined == "INDEX_NONE")
	{
		return "-1";
	}
	const std::optional<double> Number = ReadNumber(Joined);
	return Number ? Text(std::to_string(static_cast<long long>(*Number))) : std::nullopt;
}

Text ConvertReal(const std::vector<Token>& Tokens)
{
	const std::optional<double> Number = ReadNumber(Join(Tokens));
	return Number ? Text(FormatReal(*Number)) : std::nullopt;
}

Text ConvertBool(const std::vector<Token>& Tokens)
{
	const std::string Joined = Join(Tokens);
	return Joined == "true" || Joined == "false" ? Text(Joined) : std::nullopt;
}

// The string in TEXT("..."), FName("...") or alone; empty for FString() and the like.
Text ConvertString(const std::vector<Token>& Tokens)
{
	if (Join(Tokens) == "NAME_None")
	{
		return "None";
	}
	const auto String = std::ranges::find(Tokens, TokenKind::String, &Token::Kind);
	if (String != Tokens.end())
	{
		return String->Text;
	}
	return Join(Tokens).ends_with("()") ? Text("") : std::nullopt;
}

Text ConvertEnum(const std::vector<Token>& Tokens)
{
	return !Tokens.empty() && Tokens.back().Kind == TokenKind::Identifier ? Text(Tokens.back().Text) : std::nullopt;
}

Text ConvertReference(const std::vector<Token>& Tokens)
{
	const std::string Joined = Join(Tokens);
	return Joined == "nullptr" || Joined == "NULL" || Joined == "0" ? Text("None") : std::nullopt;
}

// The constants of the structs that defaults are made of.
struct Constant
{
	std::string_view Cpp;
	std::string_view Value;
};

constexpr Constant Constants[] = {
	{ "FVector::ZeroVector", "" },
	{ "FVector::OneVector", "1.000000,1.000000,1.000000" },
	{ "FVector::UpVector", "0.000000,0.000000,1.000000" },
	{ "FVector::ForwardVector", "1.000000,0.000000,0.000000" },
	{ "FVector::RightVector", "0.000000,1.000000,0.000000" },
	{ "FVector2D::ZeroVector", "" },
	{ "FRotator::ZeroRotator", "" },
	{ "FTransform::Identity", "" },
	{ "FLinearColor::White", "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" },
	{ "FLinearColor::Black", "(R=0.000000,G=0.000000,B=0.000000,A=1.000000)" },
	{ "FLinearColor::Transparent", "(R=0.000000,G=0.000000,B=0.000000,A=0.000000)" },
	{ "FLinearColor::Red", "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)" },
	{ "FLinearColor::Green", "(R=0.000000,G=1.000000,B=0.000000,A=1.000000)" },
	{ "FLinearColor::Blue", "(R=0.000000,G=0.000000,B=1.000000,A=1.000000)" },
};

// The numbers in "FType(1, 2.0f)"; nothing for other arguments.
std::optional<std::vector<double>> ReadArguments(const std::vector<Token>& Tokens)
{
	std::vector<double> Numbers;
	std::string Digits;
	for (size_t Index = 2; Index < Tokens.size(); ++Index)
	{
		if (!Tokens[Index].Is(",") && !Tokens[Index].Is(")"))
		{
			Digits += Tokens[Index].Text;
			continue;
		}
		const std::optional<double> Number = ReadNumber(Digits);
		if (!Number)
		{
			return std::nullopt;
		}
		Numbers.push_back(*Number);
		Digits.clear();
	}
	return Numbers;
}

// Members is "" for a struct whose numbers stand alone.
Text FormatStruct(std::string_view Members, const std::vector<double>& Numbers)
{
	std::string Result;
	for (size_t Index = 0; Index < Numbers.size(); ++Index)
	{
		Result += Index > 0 ? "," : "";
		Result += Members.empty() ? "" : std::string(1, Members[Index]) + "=";
		Result += FormatReal(Numbers[Index]);
	}
	return Members.empty() ? Result : "(" + Result + ")";
}

Text ConvertStruct(const std::string& Cpp, const std::vector<Token>& Tokens)
{
	const std::string Joined = Join(Tokens);
	if (const auto Found = std::ranges::find(Constants, Joined, &Constant::Cpp); Found != std::end(Constants))
	{
		return std::string(Found->Value);
	}
	if (Joined == Cpp + "()" || Joined == "{}" || Joined == Cpp + "{}")
	{
		return "()";
	}
	std::optional<std::vector<double>> Numbers = Joined.starts_with(Cpp + "(") ? ReadArguments(Tokens) : std::nullopt;
	if (!Numbers)
	{
		return std::nullopt;
	}
	if ((Cpp == "FVector" || Cpp == "FRotator") && Numbers->size() == 3)
	{
		return FormatStruct("", *Numbers);
	}
	if (Cpp == "FVector2D" && Numbers->size() == 2)
	{
		return FormatStruct("XY", *Numbers);
	}
	if (Cpp == "FLinearColor" && (Numbers->size() == 3 || Numbers->size() == 4))
	{
		Numbers->resize(4, 1.0);
		return FormatStruct("RGBA", *Numbers);
	}
	return std::nullopt;
}
}

std::optional<std::string> ConvertDefault(const PropertyType& Type, const std::vector<Token>& Tokens)
{
	static constexpr std::string_view Integers[] = { "Int8", "Int16", "Int", "Int64", "Byte", "UInt16", "UInt32", "UInt64" };
	static constexpr std::string_view References[] = { "Object", "Class", "WeakObject", "SoftObject", "SoftClass", "Interface" };
	if (Type.Kind == "Enum" || (Type.Kind == "Byte" && !Type.Referred.empty()))
	{
		return ConvertEnum(Tokens);
	}
	if (std::ranges::find(Integers, Type.Kind) != std::end(Integers))
	{
		return ConvertInteger(Tokens);
	}
	if (std::ranges::find(References, Type.Kind) != std::end(References))
	{
		return ConvertReference(Tokens);
	}
	if (Type.Kind == "Float" || Type.Kind == "Double")
	{
		return ConvertReal(Tokens);
	}
	if (Type.Kind == "Bool")
	{
		return ConvertBool(Tokens);
	}
	if (Type.Kind == "Str" || Type.Kind == "Name" || Type.Kind == "Text")
	{
		return ConvertString(Tokens);
	}
	return Type.Kind == "Struct" ? ConvertStruct(Type.Cpp, Tokens) : std::nullopt;
}
