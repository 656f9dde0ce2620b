#include "Cursor.h"

#include "SourceError.h"

#include <algorithm>

const Token& Cursor::Take()
{
	const Token& Current = Peek();
	Position += Current.Kind != TokenKind::End;
	return Current;
}

bool Cursor::TakeIf(std::string_view Text)
{
	if (!Peek().Is(Text))
	{
		return false;
	}
	Take();
	return true;
}

const Token& Cursor::Expect(std::string_view Text)
{
	if (!Peek().Is(Text))
	{
		const std::string Found = AtEnd() ? "the end of the file" : "'" + Peek().Text + "'";
		throw SourceError(GetLine(), "expected '" + std::string(Text) + "' before " + Found);
	}
	return Take();
}

std::string Cursor::ExpectIdentifier(std::string_view What)
{
	if (Peek().Kind != TokenKind::Identifier)
	{
		throw SourceError(GetLine(), "expected " + std::string(What));
	}
	return Take().Text;
}

void Cursor::SkipBalanced()
{
	const Token Open = Take();
	int Depth = 1;
	while (Depth > 0)
	{
		if (AtEnd())
		{
			throw SourceError(Open.Line, "'" + Open.Text + "' without its match");
		}
		const Token& Current = Take();
		if (IsReflectionMacro(Current) && Peek().Is("("))
		{
			throw SourceError(Current.Line, Current.Text + " where the header tool cannot read it");
		}
		if (Current.Kind == TokenKind::Symbol)
		{
			Depth += Current.Text == "{" || Current.Text == "(" || Current.Text == "[";
			Depth -= Current.Text == "}" || Current.Text == ")" || Current.Text == "]";
		}
	}
}

bool IsReflectionMacro(const Token& Word)
{
	static constexpr std::string_view Names[] = { "UCLASS", "USTRUCT", "UENUM", "UINTERFACE", "UPROPERTY", "UFUNCTION", "GENERATED_BODY",
		"GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY" };
	return Word.Kind == TokenKind::Identifier && std::ranges::find(Names, Word.Text) != std::end(Names);
}
