#pragma once

#include "Containers/UnrealString.h"

#include <string_view>

enum class EConfigLine : uint8
{
	/** Nothing, or a comment. */
	Blank,
	Section,
	Value,
	Bad,
};

/** One line of an ini file, see FConfigFile. The views are into its text. */
struct FConfigLine
{
	EConfigLine Kind = EConfigLine::Blank;
	/** '+', '-', '.' or '!' before a key, else 0. */
	TCHAR Operation = 0;
	/** The section's name, or the key. */
	std::u16string_view Name;
	/** Behind the "=", blanks around it gone, still quoted. */
	std::u16string_view Value;
};

FConfigLine ParseConfigLine(std::u16string_view Line);

/** Takes the next line off Text, with its line end ("\r\n", "\n" or "\r"). */
std::u16string_view TakeConfigLine(std::u16string_view& Text);

/** The value without its quotes, where it is one quoted text. */
FString UnquoteConfigValue(std::u16string_view Value);
/** The value as it is written, quoted where it would not come back otherwise. */
FString QuoteConfigValue(const FString& Value);
