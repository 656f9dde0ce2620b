#pragma once

#include "Lexer.h"

#include <algorithm>
#include <string_view>

// A place in a list of tokens. Never moves beyond the End token.
class Cursor
{
public:
	explicit Cursor(const std::vector<Token>& InTokens)
		: Tokens(InTokens)
	{
	}

	const Token& Peek(size_t Ahead = 0) const { return Tokens[std::min(Position + Ahead, Tokens.size() - 1)]; }
	bool AtEnd() const { return Peek().Kind == TokenKind::End; }
	int GetLine() const { return Peek().Line; }

	const Token& Take();
	bool TakeIf(std::string_view Text);
	const Token& Expect(std::string_view Text);
	std::string ExpectIdentifier(std::string_view What);

	// From an opening bracket to behind its match; a reflection macro inside is an error, for nobody would read it.
	void SkipBalanced();

private:
	const std::vector<Token>& Tokens;
	size_t Position = 0;
};

bool IsReflectionMacro(const Token& Word);
