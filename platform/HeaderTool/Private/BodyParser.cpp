#include "BodyParser.h"

#include "SourceError.h"
#include "Specifiers.h"
#include "Types.h"

#include <algorithm>

namespace
{
class BodyParser
{
public:
	BodyParser(Cursor& InTokens, Class& InType, bool bInStruct)
		: Tokens(InTokens)
		, Type(InType)
		, bStruct(bInStruct)
		, Access(bInStruct ? "public" : "private")
	{
	}

	void Run()
	{
		const Token Open = Tokens.Expect("{");
		while (!Tokens.TakeIf("}"))
		{
			if (Tokens.AtEnd())
			{
				throw SourceError(Open.Line, "the body of " + Type.Name + " has no end");
			}
			ReadMember();
		}
		if (Type.BodyLine == 0)
		{
			throw SourceError(Type.Line, Type.Name + " has no GENERATED_BODY()");
		}
	}

private:
	void ReadMember()
	{
		if (IsAtMacro())
		{
			ReadMacro();
		}
		else if (IsAtAccess())
		{
			Access = Tokens.Take().Text;
			Tokens.Take();
		}
		else
		{
			SkipMember();
		}
	}

	bool IsAtMacro() const { return IsReflectionMacro(Tokens.Peek()) && Tokens.Peek(1).Is("("); }

	bool IsAtAccess() const
	{
		const Token& Word = Tokens.Peek();
		return (Word.Is("public") || Word.Is("protected") || Word.Is("private")) && Tokens.Peek(1).Is(":");
	}

	void ReadMacro()
	{
		const Token Macro = Tokens.Take();
		if (Macro.Is("GENERATED_BODY"))
		{
			Tokens.Expect("(");
			Tokens.Expect(")");
			if (Type.BodyLine != 0)
			{
				throw SourceError(Macro.Line, Type.Name + " has two GENERATED_BODY()");
			}
			Type.BodyLine = Macro.Line;
		}
		else if (Macro.Is("UPROPERTY"))
		{
			ReadProperty(Macro);
		}
		else if (Macro.Is("UFUNCTION") && !bStruct)
		{
			ReadFunction(Macro);
		}
		else
		{
			throw SourceError(Macro.Line, Macro.Text + " cannot stand in the body of " + Type.Name);
		}
	}

	// One declaration that is not reflected. It ends with a ';' or a block; what may follow a block (an initialiser's ';',
	// the rest of a constructor's list) is then passed over as a declaration of its own. So does a macro without ';'
	// before the next reflected member.
	void SkipMember()
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is("}") && !IsAtMacro() && !IsAtAccess())
		{
			if (Tokens.Peek().Is("{"))
			{
				Tokens.SkipBalanced();
				return;
			}
			if (Tokens.TakeIf(";"))
			{
				return;
			}
			if (Tokens.Peek().Is(Type.Name) && Tokens.Peek(1).Is("("))
			{
				NoteConstructor();
			}
			else if (Tokens.Peek().Is("(") || Tokens.Peek().Is("["))
			{
				Tokens.SkipBalanced();
			}
			else
			{
				Tokens.Take();
			}
		}
	}

	void NoteConstructor()
	{
		for (size_t Ahead = 2; Ahead < 4; ++Ahead)
		{
			Type.bTakesInitializer |= Tokens.Peek(Ahead).Is("FObjectInitializer");
		}
		Tokens.Take();
	}

	void SkipDeprecation()
	{
		while (Tokens.Peek().Is("UE_DEPRECATED") || Tokens.Peek().Is("["))
		{
			if (Tokens.Peek().Is("UE_DEPRECATED"))
			{
				Tokens.Take();
			}
			Tokens.SkipBalanced();
		}
	}

	void ReadProperty(const Token& Macro)
	{
		Specifiers Read = ReadSpecifiers(Tokens, SpecifierSet::Property, Macro.Comment);
		SkipDeprecation();
		if (Tokens.Peek().Is("static"))
		{
			throw SourceError(Tokens.GetLine(), "a static member cannot be a property");
		}
		Tokens.TakeIf("mutable");
		Property New;
		DeclaredType Declared = ReadType(Tokens);
		New.Line = Tokens.GetLine();
		New.Name = Tokens.ExpectIdentifier("a property's name");
		if (Declared.bConst || Declared.bReference)
		{
			throw SourceError(New.Line, "property " + New.Name + " must be neither const nor a reference");
		}
		New.Type = std::move(Declared.Type);
		New.Flags = std::move(Read.Flags);
		New.Meta = std::move(Read.Meta);
		ReadDeclaratorEnd(New);
		AddProperty(std::move(New));
	}

	// Behind a property's name: a bit field's width, an initialiser, ';'.
	void ReadDeclaratorEnd(Property& New)
	{
		if (Tokens.Peek().Is("["))
		{
			throw SourceError(New.Line, "property " + New.Name + ": arrays of fixed size are not supported, use TArray");
		}
		if (Tokens.TakeIf(":"))
		{
			ReadBitField(New);
		}
		if (Tokens.TakeIf("="))
		{
			SkipInitializer();
		}
		else if (Tokens.Peek().Is("{"))
		{
			Tokens.SkipBalanced();
		}
		if (Tokens.Peek().Is(","))
		{
			throw SourceError(New.Line, "one UPROPERTY declares one property");
		}
		Tokens.Expect(";");
	}

	void ReadBitField(Property& New)
	{
		if (!Tokens.TakeIf("1") || (New.Type.Kind != "Byte" && New.Type.Kind != "Bool") || !New.Type.Referred.empty())
		{
			throw SourceError(New.Line, "property " + New.Name + ": a bit field must be uint8 or bool and one bit wide");
		}
		New.Type = { "Bool", "bool", {}, {} };
		New.bBitField = true;
	}

	void SkipInitializer()
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is(";") && !Tokens.Peek().Is("}"))
		{
			if (Tokens.Peek().Is("(") || Tokens.Peek().Is("{") || Tokens.Peek().Is("["))
			{
				Tokens.SkipBalanced();
			}
			else
			{
				Tokens.Take();
			}
		}
	}

	void AddProperty(Property New)
	{
		const auto Same = [&](const Property& Other) { return Other.Name == New.Name; };
		if (std::ranges::any_of(Type.Properties, Same))
		{
			throw SourceError(New.Line, "property " + New.Name + " is declared twice");
		}
		Type.Properties.push_back(std::move(New));
	}

	void ReadFunction(const Token& Macro)
	{
		Specifiers Read = ReadSpecifiers(Tokens, SpecifierSet::Function, Macro.Comment);
		SkipDeprecation();
		Function New;
		New.Flags = "FUNC_Native";
		AddFlags(New.Flags, Access == "public" ? "FUNC_Public" : Access == "protected" ? "FUNC_Protected" : "FUNC_Private");
		AddFlags(New.Flags, Read.Flags);
		New.Meta = std::move(Read.Meta);
		ReadFunctionHead(New);
		ReadParameters(New);
		ReadFunctionTail(New);
		Type.Functions.push_back(std::move(New));
	}

	// Up to the name: storage words, an export macro, the result's type.
	void ReadFunctionHead(Function& New)
	{
		for (bool bMore = true; bMore;)
		{
			const bool bStatic = Tokens.TakeIf("static");
			New.bStatic |= bStatic;
			const bool bExport = Tokens.Peek().Kind == TokenKind::Identifier && Tokens.Peek().Text.ends_with("_API");
			bMore = bStatic || Tokens.TakeIf("virtual") || Tokens.TakeIf("inline") || Tokens.TakeIf("FORCEINLINE");
			if (bExport)
			{
				Tokens.Take();
				bMore = true;
			}
		}
		AddFlags(New.Flags, New.bStatic ? "FUNC_Static" : "");
		if (!Tokens.TakeIf("void"))
		{
			New.bReturns = true;
			Result.Type = ReadType(Tokens).Type;
			Result.Name = "ReturnValue";
			Result.Flags = "CPF_Parm | CPF_OutParm | CPF_ReturnParm";
		}
		New.Name = Tokens.ExpectIdentifier("a function's name");
	}

	void ReadParameters(Function& New)
	{
		Tokens.Expect("(");
		while (!Tokens.TakeIf(")"))
		{
			New.Parameters.push_back(ReadParameter(New));
			if (!Tokens.Peek().Is(")"))
			{
				Tokens.Expect(",");
			}
		}
		if (New.bReturns)
		{
			New.Parameters.push_back(Result);
		}
	}

	Property ReadParameter(Function& New)
	{
		if (Tokens.TakeIf("UPARAM"))
		{
			Tokens.SkipBalanced();
		}
		Property Parameter;
		const DeclaredType Declared = ReadType(Tokens);
		Parameter.Line = Tokens.GetLine();
		Parameter.Name = Tokens.ExpectIdentifier("a parameter's name");
		Parameter.Type = Declared.Type;
		Parameter.Flags = "CPF_Parm";
		AddFlags(Parameter.Flags, Declared.bConst ? "CPF_ConstParm" : "");
		AddFlags(Parameter.Flags, Declared.bReference ? "CPF_OutParm | CPF_ReferenceParm" : "");
		if (Declared.bReference && New.Flags.find("FUNC_HasOutParms") == std::string::npos)
		{
			AddFlags(New.Flags, "FUNC_HasOutParms");
		}
		if (Tokens.TakeIf("="))
		{
			SkipDefaultArgument();
		}
		return Parameter;
	}

	void SkipDefaultArgument()
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is(",") && !Tokens.Peek().Is(")"))
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

	void ReadFunctionTail(Function& New)
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is(";") && !Tokens.Peek().Is("{"))
		{
			AddFlags(New.Flags, Tokens.Peek().Is("const") ? "FUNC_Const" : "");
			Tokens.Take();
		}
		if (!Tokens.TakeIf(";"))
		{
			if (Tokens.AtEnd())
			{
				throw SourceError(Tokens.GetLine(), "function " + New.Name + " has no end");
			}
			Tokens.SkipBalanced();
		}
	}

	Cursor& Tokens;
	Class& Type;
	const bool bStruct;
	std::string Access;
	Property Result; // Of the function that is read.
};
}

void ReadBody(Cursor& Tokens, Class& Type, bool bStruct)
{
	BodyParser(Tokens, Type, bStruct).Run();
}
