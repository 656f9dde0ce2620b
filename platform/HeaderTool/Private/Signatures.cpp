#include "Signatures.h"

namespace
{
std::string Spell(const Property& Parameter)
{
	const bool bConst = Parameter.bConst && !Parameter.Type.Cpp.starts_with("const ");
	return (bConst ? "const " : "") + Parameter.Type.Cpp + (Parameter.bReference ? "&" : "");
}

std::string JoinParameters(const Function& Source)
{
	std::string Text;
	for (size_t Index = 0; Index < Source.NumArguments(); ++Index)
	{
		const Property& Parameter = Source.Parameters[Index];
		Text += (Index ? ", " : "") + Spell(Parameter) + " " + Parameter.Name;
	}
	return Text;
}
}

std::string GetResult(const Function& Source)
{
	return Source.bReturns ? Spell(Source.Parameters.back()) : "void";
}

std::string Declare(const Function& Source, const std::string& Name)
{
	return GetResult(Source) + " " + Name + "(" + JoinParameters(Source) + ")" + (Source.bConst ? " const" : "");
}

std::string DeclareExecute(const Function& Source, const std::string& Owner)
{
	const std::string Parameters = JoinParameters(Source);
	return GetResult(Source) + " " + (Owner.empty() ? "" : Owner + "::") + "Execute_" + Source.Name +
		(Source.bConst ? "(const UObject* O" : "(UObject* O") + (Parameters.empty() ? "" : ", " + Parameters) + ")";
}

std::string JoinArguments(const Function& Source, const std::string& Prefix)
{
	std::string Text;
	for (size_t Index = 0; Index < Source.NumArguments(); ++Index)
	{
		Text += (Index ? ", " : "") + Prefix + Source.Parameters[Index].Name;
	}
	return Text;
}
