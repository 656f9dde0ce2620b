#include "Lexer.h"

#include "Conditionals.h"
#include "SourceError.h"

#include <cctype>

namespace
{
bool IsIdentifierStart(char C)
{
	return std::isalpha(static_cast<unsigned char>(C)) || C == '_' || static_cast<unsigned char>(C) >= 0x80;
}

bool IsIdentifierPart(char C)
{
	return IsIdentifierStart(C) || std::isdigit(static_cast<unsigned char>(C));
}

class Lexer
{
public:
	explicit Lexer(std::string_view InSource)
		: Source(InSource)
	{
		if (Source.starts_with("\xEF\xBB\xBF"))
		{
			Position = 3;
		}
	}

	LexedHeader Run()
	{
		while (SkipBlanks())
		{
			if (bLineStart && Peek() == '#')
			{
				ReadDirective();
			}
			else if (!Conditions.IsActive())
			{
				SkipLine();
			}
			else if (!ReadComment())
			{
				ReadToken();
			}
		}
		Conditions.Finish();
		Emit(TokenKind::End, {}, Line);
		return std::move(Result);
	}

private:
	char Peek(size_t Ahead = 0) const { return Position + Ahead < Source.size() ? Source[Position + Ahead] : '\0'; }
	bool AtEnd() const { return Position >= Source.size(); }
	bool StartsWith(std::string_view Text) const { return Source.substr(Position).starts_with(Text); }

	char Take()
	{
		const char C = Source[Position++];
		Line += C == '\n';
		return C;
	}

	// Stops at the next character that matters; false at the end.
	bool SkipBlanks()
	{
		while (!AtEnd())
		{
			const char C = Peek();
			if (C == '\n')
			{
				bLineStart = true;
			}
			else if (C == '\\' && (Peek(1) == '\n' || (Peek(1) == '\r' && Peek(2) == '\n')))
			{
				Take();
				continue;
			}
			else if (!std::isspace(static_cast<unsigned char>(C)) && C != '\0')
			{
				return true;
			}
			Take();
		}
		return false;
	}

	void SkipLine()
	{
		while (!AtEnd() && Peek() != '\n')
		{
			Take();
		}
	}

	// A directive's text up to its end of line, continuation lines joined and comments dropped.
	std::string TakeLogicalLine()
	{
		std::string Text;
		while (!AtEnd() && Peek() != '\n')
		{
			if (StartsWith("\\\n") || StartsWith("\\\r\n"))
			{
				while (Take() != '\n')
				{
				}
			}
			else if (StartsWith("//"))
			{
				SkipLine();
			}
			else if (StartsWith("/*"))
			{
				TakeBlockComment();
			}
			else
			{
				Text += Take();
			}
		}
		return Text;
	}

	void ReadDirective()
	{
		const int Start = Line;
		Take();
		const std::string Text = TakeLogicalLine();
		const bool bWasActive = Conditions.IsActive();
		if (Conditions.Read(Text, Start) || !bWasActive)
		{
			return;
		}
		const size_t Name = Text.find_first_not_of(" \t");
		if (Name == std::string::npos || Text.compare(Name, 7, "include") != 0)
		{
			return;
		}
		const size_t Open = Text.find_first_of("\"<", Name);
		const size_t Close = Open == std::string::npos ? Open : Text.find_first_of("\">", Open + 1);
		if (Close != std::string::npos)
		{
			Result.Includes.push_back({ Text.substr(Open + 1, Close - Open - 1), Start });
		}
	}

	std::string TakeBlockComment()
	{
		const int Start = Line;
		const size_t Begin = Position;
		Position += 2;
		while (!StartsWith("*/"))
		{
			if (AtEnd())
			{
				throw SourceError(Start, "comment without end");
			}
			Take();
		}
		Position += 2;
		return std::string(Source.substr(Begin, Position - Begin));
	}

	bool ReadComment()
	{
		const int Start = Line;
		std::string Text;
		if (StartsWith("//"))
		{
			const size_t Begin = Position;
			SkipLine();
			Text = Source.substr(Begin, Position - Begin);
		}
		else if (StartsWith("/*"))
		{
			Text = TakeBlockComment();
		}
		else
		{
			return false;
		}
		KeepComment(std::move(Text), Start);
		return true;
	}

	void KeepComment(std::string Text, int Start)
	{
		if (!Result.Tokens.empty() && Start == LastTokenLine)
		{
			return;
		}
		if (!PendingComment.empty() && Start <= PendingCommentEnd + 1)
		{
			PendingComment += '\n';
			PendingComment += Text;
		}
		else
		{
			PendingComment = std::move(Text);
		}
		PendingCommentEnd = Line;
	}

	void Emit(TokenKind Kind, std::string Text, int Start)
	{
		Token& New = Result.Tokens.emplace_back();
		New.Kind = Kind;
		New.Text = std::move(Text);
		New.Line = Start;
		if (Start <= PendingCommentEnd + 1)
		{
			New.Comment = std::move(PendingComment);
		}
		PendingComment.clear();
		LastTokenLine = Line;
		bLineStart = false;
	}

	void ReadToken()
	{
		const int Start = Line;
		const char C = Peek();
		if (IsIdentifierStart(C))
		{
			ReadWord(Start);
		}
		else if (std::isdigit(static_cast<unsigned char>(C)) || (C == '.' && std::isdigit(static_cast<unsigned char>(Peek(1)))))
		{
			ReadNumber(Start);
		}
		else if (C == '"' || C == '\'')
		{
			std::string Value = TakeQuoted(C);
			Emit(C == '"' ? TokenKind::String : TokenKind::Character, std::move(Value), Start);
		}
		else
		{
			ReadSymbol(Start);
		}
	}

	void ReadWord(int Start)
	{
		const size_t Begin = Position;
		while (!AtEnd() && IsIdentifierPart(Peek()))
		{
			Position++;
		}
		const std::string_view Word = Source.substr(Begin, Position - Begin);
		if (Peek() == '"' && (Word == "R" || Word == "u8R" || Word == "uR" || Word == "UR" || Word == "LR"))
		{
			std::string Value = TakeRawString(Start);
			Emit(TokenKind::String, std::move(Value), Start);
		}
		else if (Peek() == '"' && (Word == "u8" || Word == "u" || Word == "U" || Word == "L"))
		{
			std::string Value = TakeQuoted('"');
			Emit(TokenKind::String, std::move(Value), Start);
		}
		else
		{
			Emit(TokenKind::Identifier, std::string(Word), Start);
		}
	}

	void ReadNumber(int Start)
	{
		const size_t Begin = Position;
		while (!AtEnd())
		{
			const char Last = Position > Begin ? Source[Position - 1] : '\0';
			const bool bExponentSign = (Peek() == '+' || Peek() == '-') && (Last == 'e' || Last == 'E' || Last == 'p' || Last == 'P');
			const bool bSeparator = Peek() == '\'' && IsIdentifierPart(Peek(1));
			if (!IsIdentifierPart(Peek()) && Peek() != '.' && !bExponentSign && !bSeparator)
			{
				break;
			}
			Position++;
		}
		Emit(TokenKind::Number, std::string(Source.substr(Begin, Position - Begin)), Start);
	}

	std::string TakeQuoted(char Quote)
	{
		const int Start = Line;
		std::string Value;
		Take();
		while (!AtEnd() && Peek() != '\n')
		{
			const char C = Take();
			if (C == Quote)
			{
				return Value;
			}
			if (C != '\\' || AtEnd())
			{
				Value += C;
				continue;
			}
			const char Escaped = Take();
			switch (Escaped)
			{
			case 'n': Value += '\n'; break;
			case 't': Value += '\t'; break;
			case 'r': Value += '\r'; break;
			case '\n': break;
			default: Value += Escaped;
			}
		}
		throw SourceError(Start, Quote == '"' ? "string without end" : "character without end");
	}

	std::string TakeRawString(int Start)
	{
		const size_t Open = Source.find('(', Position);
		if (Open == std::string_view::npos)
		{
			throw SourceError(Start, "string without end");
		}
		std::string Terminator = ")";
		Terminator += Source.substr(Position + 1, Open - Position - 1);
		Terminator += '"';
		const size_t End = Source.find(Terminator, Open + 1);
		if (End == std::string_view::npos)
		{
			throw SourceError(Start, "string without end");
		}
		const std::string Value(Source.substr(Open + 1, End - Open - 1));
		while (Position < End + Terminator.size())
		{
			Take();
		}
		return Value;
	}

	void ReadSymbol(int Start)
	{
		static constexpr std::string_view LongSymbols[] = { "::", "->", "==", "!=", "<=", ">=", "&&", "||",
			"+=", "-=", "*=", "/=", "|=", "&=" };
		for (const std::string_view Symbol : LongSymbols)
		{
			if (StartsWith(Symbol))
			{
				Position += Symbol.size();
				Emit(TokenKind::Symbol, std::string(Symbol), Start);
				return;
			}
		}
		const char C = Take();
		Emit(TokenKind::Symbol, std::string(1, C), Start);
	}

	std::string_view Source;
	size_t Position = 0;
	int Line = 1;
	bool bLineStart = true;
	Conditionals Conditions;
	std::string PendingComment;
	int PendingCommentEnd = 0;
	int LastTokenLine = 0;
	LexedHeader Result;
};
}

LexedHeader Lex(std::string_view Source)
{
	return Lexer(Source).Run();
}
