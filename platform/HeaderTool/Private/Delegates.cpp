#include "Delegates.h"

#include "SourceError.h"
#include "Specifiers.h"
#include "Types.h"

namespace
{
Property ReadParameter(Cursor& Tokens)
{
	Property Parameter;
	const DeclaredType Declared = ReadType(Tokens);
	Tokens.Expect(",");
	Parameter.Line = Tokens.GetLine();
	Parameter.Name = Tokens.ExpectIdentifier("a parameter's name");
	Parameter.Type = Declared.Type;
	Parameter.Flags = "CPF_Parm";
	AddFlags(Parameter.Flags, Declared.bConst ? "CPF_ConstParm" : "");
	AddFlags(Parameter.Flags, Declared.bReference ? "CPF_OutParm | CPF_ReferenceParm" : "");
	return Parameter;
}

Property ReadResult(Cursor& Tokens)
{
	Property Result;
	Result.Type = ReadType(Tokens).Type;
	Result.Name = "ReturnValue";
	Result.Flags = "CPF_Parm | CPF_OutParm | CPF_ReturnParm";
	return Result;
}
}

bool IsAtDelegate(const Cursor& Tokens)
{
	const Token& Word = Tokens.Peek();
	return Word.Kind == TokenKind::Identifier && Tokens.Peek(1).Is("(") &&
		(Word.Text.starts_with("DECLARE_DYNAMIC_DELEGATE") || Word.Text.starts_with("DECLARE_DYNAMIC_MULTICAST_DELEGATE"));
}

Delegate ReadDelegate(Cursor& Tokens)
{
	const Token Macro = Tokens.Take();
	const bool bMulticast = Macro.Text.find("MULTICAST") != std::string::npos;
	Delegate New;
	Function& Signature = New.Signature;
	Signature.bReturns = Macro.Text.find("_RetVal") != std::string::npos;
	Signature.Flags = bMulticast ? "FUNC_MulticastDelegate | FUNC_Public | FUNC_Delegate" : "FUNC_Public | FUNC_Delegate";
	Tokens.Expect("(");
	Property Result;
	if (Signature.bReturns)
	{
		Result = ReadResult(Tokens);
		Tokens.Expect(",");
	}
	New.Line = Tokens.GetLine();
	New.Name = Tokens.ExpectIdentifier("a delegate's name");
	if (!New.Name.starts_with('F'))
	{
		throw SourceError(New.Line, "the name '" + New.Name + "' must begin with 'F'");
	}
	Signature.Name = New.Name.substr(1) + "__DelegateSignature";
	if (const std::string ToolTip = CleanComment(Macro.Comment); !ToolTip.empty())
	{
		Signature.Meta.Set("ToolTip", ToolTip);
	}
	while (!Tokens.TakeIf(")"))
	{
		Tokens.Expect(",");
		Signature.Parameters.push_back(ReadParameter(Tokens));
	}
	if (Signature.bReturns)
	{
		Signature.Parameters.push_back(std::move(Result));
	}
	return New;
}
