#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class TokenKind
{
	Identifier,
	Number,
	String, // Text is the value, escapes resolved.
	Character,
	Symbol,
	End,
};

struct Token
{
	TokenKind Kind = TokenKind::End;
	std::string Text;
	int Line = 0;
	// The comment that stands directly over the token, markers included; empty for a comment that a blank line
	// separates or that trails an earlier token on its own line.
	std::string Comment;

	bool Is(std::string_view Wanted) const { return Kind != TokenKind::String && Text == Wanted; }
};

struct IncludeLine
{
	std::string Path;
	int Line;
};

struct LexedHeader
{
	std::vector<Token> Tokens; // Ends with one TokenKind::End.
	std::vector<IncludeLine> Includes;
};

// Splits a header into tokens. Preprocessor lines are left out; of a conditional block the branch is read that an editor
// build takes: every condition counts as true but 0, false, and the negation of 1, true and the editor's own switches.
// ">>" comes as two symbols, so that nested templates close one by one. Throws SourceError.
LexedHeader Lex(std::string_view Source);
