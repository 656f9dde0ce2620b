#include "Parser.h"

#include "BodyParser.h"
#include "Lexer.h"
#include "SourceError.h"
#include "Specifiers.h"

namespace
{
// "class NAME_API UFoo final" up to ':', '{' or ';': the last word is the name.
std::string ReadTypeName(Cursor& Tokens)
{
	std::string Name;
	while (!Tokens.Peek().Is(":") && !Tokens.Peek().Is("{") && !Tokens.Peek().Is(";"))
	{
		if (Tokens.Peek().Is("(") || Tokens.Peek().Is("["))
		{
			Tokens.SkipBalanced();
			continue;
		}
		const std::string Word = Tokens.ExpectIdentifier("the name of a type");
		Name = Word == "final" ? Name : Word;
	}
	return Name;
}

// ": public USuper, public IOther": the first base counts.
std::string ReadSuper(Cursor& Tokens)
{
	if (!Tokens.TakeIf(":"))
	{
		return {};
	}
	Tokens.TakeIf("virtual");
	Tokens.TakeIf("public");
	const std::string Super = Tokens.ExpectIdentifier("a super class");
	while (!Tokens.AtEnd() && !Tokens.Peek().Is("{"))
	{
		Tokens.Take();
	}
	return Super;
}

class HeaderParser
{
public:
	HeaderParser(std::string_view Source, const std::string& Include)
		: Lexed(Lex(Source))
		, Tokens(Lexed.Tokens)
	{
		Result.Include = Include;
		const size_t Slash = Include.rfind('/');
		Result.Stem = Include.substr(Slash == std::string::npos ? 0 : Slash + 1);
		Result.Stem = Result.Stem.substr(0, Result.Stem.rfind('.'));
	}

	Header Run()
	{
		while (!Tokens.AtEnd())
		{
			ReadFileLevel();
		}
		CheckIncludes();
		return std::move(Result);
	}

private:
	void ReadFileLevel()
	{
		const Token& Current = Tokens.Peek();
		if (IsReflectionMacro(Current) && Tokens.Peek(1).Is("("))
		{
			ReadReflected();
		}
		else if (Current.Is("{"))
		{
			Tokens.SkipBalanced();
		}
		else
		{
			Tokens.Take();
		}
	}

	void ReadReflected()
	{
		const Token Macro = Tokens.Take();
		if (Macro.Is("UCLASS"))
		{
			ReadClass(Macro);
		}
		else if (Macro.Is("USTRUCT"))
		{
			ReadStruct(Macro);
		}
		else if (Macro.Is("UENUM"))
		{
			ReadEnum(Macro);
		}
		else if (Macro.Is("UINTERFACE"))
		{
			throw SourceError(Macro.Line, "UINTERFACE is not supported");
		}
		else
		{
			throw SourceError(Macro.Line, Macro.Text + " outside of a reflected class or struct");
		}
	}

	Class ReadTypeHead(const Token& Macro, SpecifierSet Set, std::string_view Keyword)
	{
		Specifiers Read = ReadSpecifiers(Tokens, Set, Macro.Comment);
		Class Type;
		Tokens.Expect(Keyword);
		Type.Line = Tokens.GetLine();
		Type.Name = ReadTypeName(Tokens);
		Type.Super = ReadSuper(Tokens);
		Type.Config = std::move(Read.Config);
		Type.Flags = std::move(Read.Flags);
		Type.Meta = std::move(Read.Meta);
		if (!Tokens.Peek().Is("{"))
		{
			throw SourceError(Macro.Line, Macro.Text + " over a declaration without body");
		}
		return Type;
	}

	void ReadClass(const Token& Macro)
	{
		Class Type = ReadTypeHead(Macro, SpecifierSet::Class, "class");
		CheckPrefix(Type, "UA");
		if (Type.Super.empty())
		{
			throw SourceError(Type.Line, "class " + Type.Name + " needs a super class");
		}
		ReadBody(Tokens, Type, false);
		Result.Classes.push_back(std::move(Type));
	}

	void ReadStruct(const Token& Macro)
	{
		Class Type = ReadTypeHead(Macro, SpecifierSet::Struct, "struct");
		CheckPrefix(Type, "F");
		ReadBody(Tokens, Type, true);
		Result.Structs.push_back(std::move(Type));
	}

	static void CheckPrefix(const Class& Type, std::string_view Prefixes)
	{
		if (Type.Name.size() < 2 || Prefixes.find(Type.Name[0]) == std::string_view::npos)
		{
			const std::string Wanted = Prefixes == "F" ? "'F'" : "'U' or 'A'";
			throw SourceError(Type.Line, "the name '" + Type.Name + "' must begin with " + Wanted);
		}
	}

	void ReadEnum(const Token& Macro)
	{
		Enum Type;
		Type.Meta = ReadSpecifiers(Tokens, SpecifierSet::Enum, Macro.Comment).Meta;
		Tokens.Expect("enum");
		Type.bScoped = Tokens.TakeIf("class") || Tokens.TakeIf("struct");
		Type.Line = Tokens.GetLine();
		Type.Name = ReadTypeName(Tokens);
		if (!Type.Name.starts_with('E'))
		{
			throw SourceError(Type.Line, "the name '" + Type.Name + "' must begin with 'E'");
		}
		if (Tokens.TakeIf(":"))
		{
			Type.Underlying = Tokens.ExpectIdentifier("the enum's type");
		}
		else if (!Type.bScoped)
		{
			throw SourceError(Type.Line, "enum " + Type.Name + " needs a type: enum class " + Type.Name + " : uint8");
		}
		Tokens.Expect("{");
		while (!Tokens.TakeIf("}"))
		{
			ReadEnumerator(Type);
		}
		Tokens.Expect(";");
		Result.Enums.push_back(std::move(Type));
	}

	void ReadEnumerator(Enum& Type)
	{
		Enumerator Entry;
		const std::string Comment = Tokens.Peek().Comment;
		Entry.Name = Tokens.ExpectIdentifier("an enumerator");
		if (const std::string ToolTip = CleanComment(Comment); !ToolTip.empty())
		{
			Entry.Meta.Set("ToolTip", ToolTip);
		}
		for (bool bMore = true; bMore;)
		{
			if (Tokens.TakeIf("UMETA"))
			{
				Entry.Meta = ReadSpecifiers(Tokens, SpecifierSet::Enumerator, Comment).Meta;
			}
			else if (Tokens.TakeIf("="))
			{
				SkipEnumeratorValue();
			}
			else
			{
				bMore = false;
			}
		}
		if (!Tokens.Peek().Is("}"))
		{
			Tokens.Expect(",");
		}
		Type.Enumerators.push_back(std::move(Entry));
	}

	void SkipEnumeratorValue()
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is(",") && !Tokens.Peek().Is("}") && !Tokens.Peek().Is("UMETA"))
		{
			if (Tokens.Peek().Is("(") || Tokens.Peek().Is("{"))
			{
				Tokens.SkipBalanced();
			}
			else
			{
				Tokens.Take();
			}
		}
	}

	// Generated code relies on the header's own .generated.h as the last include.
	void CheckIncludes() const
	{
		const std::string Wanted = Result.Stem + ".generated.h";
		const bool bReflected = !Result.Classes.empty() || !Result.Structs.empty() || !Result.Enums.empty();
		if (bReflected && (Lexed.Includes.empty() || Lexed.Includes.back().Path != Wanted))
		{
			const int Line = Lexed.Includes.empty() ? 1 : Lexed.Includes.back().Line;
			throw SourceError(Line, "the last include must be \"" + Wanted + "\"");
		}
	}

	LexedHeader Lexed;
	Cursor Tokens;
	Header Result;
};
}

Header ParseHeader(std::string_view Source, const std::string& Include)
{
	return HeaderParser(Source, Include).Run();
}
