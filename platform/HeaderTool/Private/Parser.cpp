#include "Parser.h"

#include "BodyParser.h"
#include "Delegates.h"
#include "Lexer.h"
#include "SourceError.h"
#include "Specifiers.h"

#include <algorithm>

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

// The name of a base class, token by token: "public", "Outer", "::", "IOther". Empty behind template arguments.
std::string AddToName(std::string Name, const Token& Next)
{
	const bool bQualified = Next.Is("::") || Name.ends_with("::");
	if (Next.Kind != TokenKind::Identifier && !Next.Is("::"))
	{
		return {};
	}
	return bQualified ? Name + Next.Text : Next.Text;
}

// ": public USuper, public IOther": the first base is the super class. A base with template arguments is none that reflection knows.
void ReadBases(Cursor& Tokens, Class& Type)
{
	if (!Tokens.TakeIf(":"))
	{
		return;
	}
	std::vector<std::string> Bases;
	std::string Last;
	int Depth = 0;
	while (!Tokens.AtEnd() && !Tokens.Peek().Is("{"))
	{
		const Token& Current = Tokens.Take();
		Depth += Current.Is("<");
		Depth -= Current.Is(">");
		if (Depth == 0 && Current.Is(","))
		{
			Bases.push_back(std::move(Last));
			Last.clear();
		}
		else if (Depth == 0)
		{
			Last = AddToName(std::move(Last), Current);
		}
	}
	Bases.push_back(std::move(Last));
	Type.Super = Bases.front();
	Bases.erase(Bases.begin());
	std::erase(Bases, std::string());
	Type.Bases = std::move(Bases);
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
		CheckInterfaces();
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
		else if (IsAtDelegate(Tokens))
		{
			Result.Delegates.push_back(ReadDelegate(Tokens));
		}
		else if (Class* const Interface = FindInterfaceBody())
		{
			ReadInterfaceBody(*Interface);
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

	// The interface whose class "I..." is defined here, or null.
	Class* FindInterfaceBody()
	{
		if (!Tokens.Peek().Is("class"))
		{
			return nullptr;
		}
		size_t Ahead = 1;
		while (Tokens.Peek(Ahead + 1).Kind == TokenKind::Identifier)
		{
			++Ahead;
		}
		const bool bDefined = Tokens.Peek(Ahead + 1).Is("{") || Tokens.Peek(Ahead + 1).Is(":");
		const auto Found = std::ranges::find_if(
			Result.Classes, [&](const Class& Each) { return Each.IsInterface() && Tokens.Peek(Ahead).Is(Each.GetFunctionOwner()); });
		return bDefined && Found != Result.Classes.end() ? &*Found : nullptr;
	}

	void ReadInterfaceBody(Class& Interface)
	{
		while (!Tokens.Peek().Is("{"))
		{
			Tokens.Take();
		}
		ReadBody(Tokens, Interface, BodyKind::Interface);
	}

	void ReadReflected()
	{
		const Token Macro = Tokens.Take();
		if (Macro.Is("UCLASS") || Macro.Is("UINTERFACE"))
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
		ReadBases(Tokens, Type);
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
		if (Macro.Is("UINTERFACE"))
		{
			AddFlags(Type.Flags, "CLASS_Abstract | CLASS_Interface");
		}
		ReadBody(Tokens, Type, BodyKind::Class);
		Result.Classes.push_back(std::move(Type));
	}

	void ReadStruct(const Token& Macro)
	{
		Class Type = ReadTypeHead(Macro, SpecifierSet::Struct, "struct");
		CheckPrefix(Type, "F");
		ReadBody(Tokens, Type, BodyKind::Struct);
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
		const bool bNamespace = Tokens.TakeIf("namespace");
		Type.Line = Tokens.GetLine();
		Type.Name = bNamespace ? ReadEnumNamespace() : std::string();
		Tokens.Expect("enum");
		Type.bScoped = Tokens.TakeIf("class") || Tokens.TakeIf("struct") || bNamespace;
		Type.Line = Tokens.GetLine();
		Type.Cpp = ReadTypeName(Tokens);
		if (!bNamespace)
		{
			Type.Name = Type.Cpp;
		}
		else if (Type.Cpp != "Type")
		{
			throw SourceError(Type.Line, "the enum in namespace " + Type.Name + " must be called 'Type'");
		}
		if (!Type.Name.starts_with('E'))
		{
			throw SourceError(Type.Line, "the name '" + Type.Name + "' must begin with 'E'");
		}
		if (Tokens.TakeIf(":"))
		{
			Type.Underlying = Tokens.ExpectIdentifier("the enum's type");
		}
		else if (!Type.bScoped || bNamespace)
		{
			throw SourceError(Type.Line, "enum " + Type.Name + " needs a type: enum class " + Type.Name + " : uint8");
		}
		Tokens.Expect("{");
		while (!Tokens.TakeIf("}"))
		{
			ReadEnumerator(Type);
		}
		Tokens.Expect(";");
		if (bNamespace)
		{
			Tokens.Expect("}");
			Type.Cpp = Type.Name + "::" + Type.Cpp;
		}
		Result.Enums.push_back(std::move(Type));
	}

	// "namespace EName { enum Type : int { ... }; }", up to the enum.
	std::string ReadEnumNamespace()
	{
		std::string Name = Tokens.ExpectIdentifier("the enum's namespace");
		Tokens.Expect("{");
		return Name;
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

	void CheckInterfaces() const
	{
		for (const Class& Each : Result.Classes)
		{
			if (Each.IsInterface() && Each.InterfaceBodyLine == 0)
			{
				throw SourceError(Each.Line, "interface " + Each.Name + " needs its class " + Each.GetFunctionOwner() + " behind it");
			}
		}
	}

	// Generated code relies on the header's own .generated.h as the last include.
	void CheckIncludes() const
	{
		const std::string Wanted = Result.Stem + ".generated.h";
		const bool bReflected = !Result.Classes.empty() || !Result.Delegates.empty() || !Result.Structs.empty() || !Result.Enums.empty();
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
