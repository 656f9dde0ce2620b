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
	{ "int8", "Int8" },
	{ "int16", "Int16" },
	{ "int32", "Int" },
	{ "int", "Int" },
	{ "int64", "Int64" },
	{ "uint8", "Byte" },
	{ "uint16", "UInt16" },
	{ "uint32", "UInt32" },
	{ "uint64", "UInt64" },
	{ "float", "Float" },
	{ "double", "Double" },
	{ "FString", "Str" },
	{ "FName", "Name" },
	{ "FText", "Text" },
};

// A template around the name of one type.
struct Wrapper
{
	std::string_view Cpp;
	std::string_view Kind;
	std::string_view Prefixes;
};

constexpr Wrapper Wrappers[] = {
	{ "TEnumAsByte", "Byte", "E" },
	{ "TObjectPtr", "Object", "UA" },
	{ "TScriptInterface", "Interface", "I" },
	{ "TSoftClassPtr", "SoftClass", "UA" },
	{ "TSoftObjectPtr", "SoftObject", "UA" },
	{ "TSubclassOf", "Class", "UA" },
	{ "TWeakObjectPtr", "WeakObject", "UA" },
};

// A template around any types.
struct Container
{
	std::string_view Cpp;
	std::string_view Kind;
	int Arguments;
};

constexpr Container Containers[] = {
	{ "TArray", "Array", 1 },
	{ "TMap", "Map", 2 },
	{ "TSet", "Set", 1 },
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

PropertyType ReadContainer(Cursor& Tokens, const Container& Kind, int Line)
{
	PropertyType Result{ std::string(Kind.Kind), std::string(Kind.Cpp) + "<", {}, {} };
	for (int Index = 0; Index < Kind.Arguments; ++Index)
	{
		if (Index > 0)
		{
			Tokens.Expect(",");
		}
		PropertyType Inner = ReadBareType(Tokens);
		if (!Inner.Inner.empty())
		{
			throw SourceError(Line, "a container of containers is not known to reflection");
		}
		Result.Cpp += (Index > 0 ? ", " : "") + Inner.Cpp;
		Result.Inner.push_back(std::move(Inner));
	}
	Result.Cpp += ">";
	return Result;
}

// "::Type" behind the name of an enum's namespace, or nothing.
std::string ReadEnumMember(Cursor& Tokens)
{
	if (Tokens.TakeIf("::"))
	{
		Tokens.Expect("Type");
		return "::Type";
	}
	return {};
}

PropertyType ReadWrapper(Cursor& Tokens, const Wrapper& Kind, int Line)
{
	Tokens.TakeIf("const");
	Tokens.TakeIf("class") || Tokens.TakeIf("enum");
	const std::string Argument = Tokens.ExpectIdentifier("a type");
	const std::string Name(Kind.Cpp);
	if (!HasPrefix(Argument, Kind.Prefixes))
	{
		RefuseType(Line, Name + "<" + Argument + ">");
	}
	const std::string Cpp = Argument + (Kind.Kind == "Byte" ? ReadEnumMember(Tokens) : "");
	// Of an interface reflection knows the class that stands for it.
	const std::string Referred = Kind.Kind == "Interface" ? "U" + Argument.substr(1) : Argument;
	return { std::string(Kind.Kind), Name + "<" + Cpp + ">", Referred, {} };
}

PropertyType ReadTemplate(Cursor& Tokens, const std::string& Name, int Line)
{
	Tokens.Expect("<");
	PropertyType Result;
	if (const auto Kind = std::ranges::find(Containers, Name, &Container::Cpp); Kind != std::end(Containers))
	{
		Result = ReadContainer(Tokens, *Kind, Line);
	}
	else if (const auto Around = std::ranges::find(Wrappers, Name, &Wrapper::Cpp); Around != std::end(Wrappers))
	{
		Result = ReadWrapper(Tokens, *Around, Line);
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
	if (HasPrefix(Name, "E") && Tokens.Peek().Is("::") && Tokens.Peek(1).Is("Type"))
	{
		return { "Byte", "TEnumAsByte<" + Name + ReadEnumMember(Tokens) + ">", Name, {} };
	}
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
	if (bPointer && Name == "UClass")
	{
		return { "Class", "UClass*", "UObject", {} };
	}
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
	if (Result.bConst && !Result.bReference && Result.Type.Kind == "Object")
	{
		Result.Type.Cpp = "const " + Result.Type.Cpp;
	}
	return Result;
}
