#include "Types.h"

#include "SourceError.h"

#include <algorithm>
#include <cctype>

namespace
{
struct PlainType
{
	std::string_view Cpp;
	std::string_view Kind;
};

constexpr PlainType PlainTypes[] = {
	{ "bool", "Bool" },
	{ "uint8", "Byte" },
	{ "int32", "Int" },
	{ "int", "Int" },
	{ "int64", "Int64" },
	{ "float", "Float" },
	{ "double", "Double" },
	{ "FString", "Str" },
	{ "FName", "Name" },
	{ "FText", "Text" },
};

bool HasPrefix(const std::string& Name, std::string_view Prefixes)
{
	return Name.size() > 1 && Prefixes.find(Name[0]) != std::string_view::npos && std::isupper(static_cast<unsigned char>(Name[1]));
}

[[noreturn]] void RefuseType(int Line, const std::string& Name)
{
	throw SourceError(Line, "type '" + Name + "' is not known to reflection");
}

PropertyType ReadBareType(Cursor& Tokens);

PropertyType ReadArray(Cursor& Tokens, int Line)
{
	if (Tokens.Peek().Is("TArray"))
	{
		throw SourceError(Line, "an array of arrays is not known to reflection");
	}
	PropertyType Inner = ReadBareType(Tokens);
	PropertyType Result{ "Array", "TArray<" + Inner.Cpp + ">", {}, {} };
	Result.Inner.push_back(std::move(Inner));
	return Result;
}

PropertyType ReadTemplate(Cursor& Tokens, const std::string& Name, int Line)
{
	Tokens.Expect("<");
	PropertyType Result;
	if (Name == "TArray")
	{
		Result = ReadArray(Tokens, Line);
	}
	else if (Name == "TObjectPtr" || Name == "TSubclassOf" || Name == "TEnumAsByte")
	{
		Tokens.TakeIf("class") || Tokens.TakeIf("enum");
		const std::string Argument = Tokens.ExpectIdentifier("a type");
		const bool bEnum = Name == "TEnumAsByte";
		if (!HasPrefix(Argument, bEnum ? "E" : "UA"))
		{
			RefuseType(Line, Name + "<" + Argument + ">");
		}
		Result = { bEnum ? "Byte" : Name == "TObjectPtr" ? "Object" : "Class", Name + "<" + Argument + ">", Argument, {} };
	}
	else
	{
		RefuseType(Line, Name);
	}
	Tokens.Expect(">");
	return Result;
}

PropertyType ReadBareType(Cursor& Tokens)
{
	const int Line = Tokens.GetLine();
	Tokens.TakeIf("class") || Tokens.TakeIf("struct") || Tokens.TakeIf("enum");
	const std::string Name = Tokens.ExpectIdentifier("a type");
	if (Tokens.Peek().Is("::"))
	{
		RefuseType(Line, Name + "::" + Tokens.Peek(1).Text);
	}
	if (Tokens.Peek().Is("<"))
	{
		return ReadTemplate(Tokens, Name, Line);
	}
	if (const auto Plain = std::ranges::find(PlainTypes, Name, &PlainType::Cpp); Plain != std::end(PlainTypes))
	{
		return { std::string(Plain->Kind), Name, {}, {} };
	}
	const bool bPointer = Tokens.TakeIf("*");
	if (bPointer && HasPrefix(Name, "UA"))
	{
		return { "Object", Name + "*", Name, {} };
	}
	if (!bPointer && HasPrefix(Name, "FE"))
	{
		return { Name[0] == 'F' ? "Struct" : "Enum", Name, Name, {} };
	}
	RefuseType(Line, bPointer ? Name + "*" : Name);
}
}

DeclaredType ReadType(Cursor& Tokens)
{
	DeclaredType Result;
	Result.bConst = Tokens.TakeIf("const");
	Result.Type = ReadBareType(Tokens);
	Result.bConst = Tokens.TakeIf("const") || Result.bConst;
	if (Tokens.Peek().Is("*"))
	{
		RefuseType(Tokens.GetLine(), Result.Type.Cpp + "*");
	}
	Result.bReference = Tokens.TakeIf("&");
	if (Result.bConst && Result.Type.Kind == "Object")
	{
		Result.Type.Cpp = "const " + Result.Type.Cpp;
	}
	return Result;
}
