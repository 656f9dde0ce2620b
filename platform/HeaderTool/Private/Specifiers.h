#pragma once

#include "Cursor.h"
#include "Model.h"

#include <string>
#include <string_view>

// The words in the brackets of a reflection macro, with what they mean.
struct Specifiers
{
	std::string Flags;
	std::string Config; // The value of Config=.
	MetaData Meta;
};

enum class SpecifierSet
{
	Class,
	Struct,
	Enum,
	Enumerator,
	Property,
	Function,
	Parameter,
};

// Reads "( ... )" behind the macro's name. Words are compared without case; an unknown one is an error.
// Comment, cleaned of its markers, becomes the tool tip unless the brackets give one.
Specifiers ReadSpecifiers(Cursor& Tokens, SpecifierSet Set, const std::string& Comment);

void AddFlags(std::string& Flags, std::string_view Added);

// A comment's text for a reader: markers, leading stars and ruler lines gone, lines trimmed.
std::string CleanComment(std::string_view Comment);
