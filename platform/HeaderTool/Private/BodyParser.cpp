#include "BodyParser.h"

#include "Defaults.h"
#include "Delegates.h"
#include "SourceError.h"
#include "Specifiers.h"
#include "Types.h"

#include <algorithm>

namespace
{
class BodyParser
{
public:
	BodyParser(Cursor& InTokens, Class& InType, BodyKind InKind)
		: Tokens(InTokens)
		, Type(InType)
		, Kind(InKind)
		, Name(InKind == BodyKind::Interface ? InType.GetFunctionOwner() : InType.Name)
		, BodyLine(InKind == BodyKind::Interface ? InType.InterfaceBodyLine : InType.BodyLine)
		, Access(InKind == BodyKind::Struct ? "public" : "private")
	{
	}

	void Run()
	{
		const Token Open = Tokens.Expect("{");
		while (!Tokens.TakeIf("}"))
		{
			if (Tokens.AtEnd())
			{
				throw SourceError(Open.Line, "the body of " + Name + " has no end");
			}
			ReadMember();
		}
		if (BodyLine == 0)
		{
			throw SourceError(Kind == BodyKind::Interface ? Open.Line : Type.Line, Name + " has no GENERATED_BODY()");
		}
		QualifyDelegates();
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
		else if (IsAtDelegate(Tokens))
		{
			Type.Delegates.push_back(ReadDelegate(Tokens));
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
			if (BodyLine != 0)
			{
				throw SourceError(Macro.Line, Name + " has two GENERATED_BODY()");
			}
			BodyLine = Macro.Line;
		}
		else if (Macro.Is("UPROPERTY") && Kind != BodyKind::Interface)
		{
			ReadProperty(Macro);
		}
		else if (Macro.Is("UFUNCTION") && Kind != BodyKind::Struct)
		{
			ReadFunction(Macro);
		}
		else
		{
			throw SourceError(Macro.Line, Macro.Text + " cannot stand in the body of " + Name);
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
			else if (Tokens.Peek().Text.ends_with("_Implementation") && Tokens.Peek(1).Is("("))
			{
				Type.Implementations.insert(Tokens.Take().Text);
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
		AddFlags(New.Flags, New.Meta.Has("ExposeOnSpawn") ? "CPF_ExposeOnSpawn" : "");
		ReadDeclaratorEnd(New);
		AddProperty(std::move(New));
	}

	// Behind a property's name: a bit field's width, an initialiser, ';'.
	void ReadDeclaratorEnd(Property& New)
	{
		if (Tokens.Peek().Is("["))
		{
			ReadFixedSize(New);
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

	void ReadFixedSize(Property& New)
	{
		if (!New.Type.Inner.empty())
		{
			throw SourceError(New.Line, "property " + New.Name + ": an array of fixed size of containers is not known to reflection");
		}
		Tokens.SkipBalanced();
		New.bFixedArray = true;
		if (Tokens.Peek().Is("["))
		{
			throw SourceError(New.Line, "property " + New.Name + ": an array of arrays is not known to reflection");
		}
	}

	void ReadBitField(Property& New)
	{
		const bool bFits = New.Type.Kind == "Byte" || New.Type.Kind == "UInt32" || New.Type.Kind == "Bool";
		if (!Tokens.TakeIf("1") || !bFits || !New.Type.Referred.empty())
		{
			throw SourceError(New.Line, "property " + New.Name + ": a bit field must be uint8, uint32 or bool and one bit wide");
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
		// What events are beside it, their specifiers say.
		New.Flags = Read.Flags.find("FUNC_Event") == std::string::npos ? "FUNC_Native" : "";
		AddFlags(New.Flags, Access == "public" ? "FUNC_Public" : Access == "protected" ? "FUNC_Protected" : "FUNC_Private");
		AddFlags(New.Flags, Read.Flags);
		New.Meta = std::move(Read.Meta);
		ReadFunctionHead(New);
		ReadParameters(New);
		ReadFunctionTail(New);
		CheckEvent(New, Macro.Line);
		Type.Functions.push_back(std::move(New));
	}

	static void CheckEvent(const Function& New, int Line)
	{
		if (New.IsEvent() && New.bStatic)
		{
			throw SourceError(Line, "function " + New.Name + " is an event and cannot be static");
		}
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
			Result = Property();
			const DeclaredType Declared = ReadType(Tokens);
			Result.Type = Declared.Type;
			Result.bConst = Declared.bConst;
			Result.bReference = Declared.bReference;
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
		Specifiers Read;
		if (Tokens.TakeIf("UPARAM"))
		{
			Read = ReadSpecifiers(Tokens, SpecifierSet::Parameter, {});
		}
		Property Parameter;
		const DeclaredType Declared = ReadType(Tokens);
		Parameter.Line = Tokens.GetLine();
		Parameter.Name = Tokens.ExpectIdentifier("a parameter's name");
		Parameter.Type = Declared.Type;
		Parameter.bConst = Declared.bConst;
		Parameter.bReference = Declared.bReference;
		Parameter.Meta = std::move(Read.Meta);
		Parameter.Flags = "CPF_Parm";
		AddFlags(Parameter.Flags, Declared.bConst ? "CPF_ConstParm" : "");
		// A reference that may be written is a result, unless it says that it is read as well.
		AddFlags(Parameter.Flags, Declared.bReference ? "CPF_OutParm" : "");
		AddFlags(Parameter.Flags, Declared.bReference && Declared.bConst ? "CPF_ReferenceParm" : "");
		AddFlags(Parameter.Flags, Read.Flags);
		if (Declared.bReference && !New.Has("FUNC_HasOutParms"))
		{
			AddFlags(New.Flags, "FUNC_HasOutParms");
		}
		if (Tokens.TakeIf("="))
		{
			ReadDefaultArgument(New, Parameter);
		}
		return Parameter;
	}

	void ReadDefaultArgument(Function& New, const Property& Parameter)
	{
		std::vector<Token> Default;
		int Depth = 0;
		while (!Tokens.AtEnd() && (Depth > 0 || (!Tokens.Peek().Is(",") && !Tokens.Peek().Is(")"))))
		{
			Default.push_back(Tokens.Take());
			Depth += Default.back().Is("(") || Default.back().Is("{");
			Depth -= Default.back().Is(")") || Default.back().Is("}");
		}
		if (const std::optional<std::string> Value = ConvertDefault(Parameter.Type, Default))
		{
			New.Meta.Set("CPP_Default_" + Parameter.Name, *Value);
		}
	}

	void ReadFunctionTail(Function& New)
	{
		while (!Tokens.AtEnd() && !Tokens.Peek().Is(";") && !Tokens.Peek().Is("{"))
		{
			New.bConst |= Tokens.Peek().Is("const");
			Tokens.Take();
		}
		AddFlags(New.Flags, New.bConst ? "FUNC_Const" : "");
		if (!Tokens.TakeIf(";"))
		{
			if (Tokens.AtEnd())
			{
				throw SourceError(Tokens.GetLine(), "function " + New.Name + " has no end");
			}
			Tokens.SkipBalanced();
		}
	}

	// The class's own delegates are named from outside of it in generated code.
	void QualifyDelegates()
	{
		for (Property& Each : Type.Properties)
		{
			Qualify(Each.Type);
		}
		for (Function& Each : Type.Functions)
		{
			for (Property& Parameter : Each.Parameters)
			{
				Qualify(Parameter.Type);
			}
		}
	}

	void Qualify(PropertyType& Used) const
	{
		const auto Own = std::ranges::find(Type.Delegates, Used.Cpp, &Delegate::Name);
		if (Own != Type.Delegates.end())
		{
			Used.Cpp = Type.Name + "::" + Used.Cpp;
		}
	}

	Cursor& Tokens;
	Class& Type;
	const BodyKind Kind;
	const std::string Name; // The C++ class whose body it is.
	int& BodyLine;
	std::string Access;
	Property Result; // Of the function that is read.
};
}

void ReadBody(Cursor& Tokens, Class& Type, BodyKind Kind)
{
	BodyParser(Tokens, Type, Kind).Run();
}
