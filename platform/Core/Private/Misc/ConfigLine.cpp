#include "Misc/ConfigLine.h"

#include "Misc/Parse.h"

#include <algorithm>

namespace
{
std::u16string_view Trim(std::u16string_view Text)
{
	while (!Text.empty() && FChar::IsWhitespace(Text.front()))
	{
		Text.remove_prefix(1);
	}
	while (!Text.empty() && FChar::IsWhitespace(Text.back()))
	{
		Text.remove_suffix(1);
	}
	return Text;
}
}

FConfigLine ParseConfigLine(std::u16string_view Line)
{
	Line = Trim(Line);
	if (Line.empty() || Line.front() == ';')
	{
		return {};
	}
	if (Line.front() == '[' && Line.back() == ']')
	{
		return { EConfigLine::Section, 0, Line.substr(1, Line.size() - 2), {} };
	}
	const SIZE_T Equals = Line.find(u'=');
	if (Line.front() == '[' || Equals == std::u16string_view::npos)
	{
		return { EConfigLine::Bad, 0, {}, {} };
	}
	std::u16string_view Name = Trim(Line.substr(0, Equals));
	TCHAR Operation = 0;
	if (!Name.empty() && std::u16string_view(u"+-.!").find(Name.front()) != std::u16string_view::npos)
	{
		Operation = Name.front();
		Name = Trim(Name.substr(1));
	}
	return { Name.empty() ? EConfigLine::Bad : EConfigLine::Value, Operation, Name, Trim(Line.substr(Equals + 1)) };
}

std::u16string_view TakeConfigLine(std::u16string_view& Text)
{
	SIZE_T End = std::min(Text.find_first_of(u"\r\n"), Text.size());
	if (End < Text.size())
	{
		End += Text.substr(End).starts_with(u"\r\n") ? 2 : 1;
	}
	const std::u16string_view Line = Text.substr(0, End);
	Text.remove_prefix(End);
	return Line;
}

FString UnquoteConfigValue(std::u16string_view Value)
{
	const FString Text(Value);
	FString Unquoted;
	int32 Length = 0;
	return FParse::QuotedString(*Text, Unquoted, &Length) && Length == Text.Len() ? Unquoted : Text;
}

FString QuoteConfigValue(const FString& Value)
{
	const std::u16string_view Text = Value.View();
	const bool bControl = std::ranges::any_of(Text, [](TCHAR Char) { return Char == '\n' || Char == '\r'; });
	if (Trim(Text) == Text && !Text.starts_with(u'"') && !bControl)
	{
		return Value;
	}
	FString Quoted;
	FParse::AppendQuotedString(Quoted, Value);
	return Quoted;
}
