#include "Conditionals.h"

#include "SourceError.h"

#include <algorithm>
#include <cctype>

namespace
{
bool IsTrue(std::string Condition)
{
	std::erase_if(Condition, [](unsigned char C) { return std::isspace(C) != 0 || C == '(' || C == ')'; });
	static constexpr const char* False[] = { "0", "false", "!1", "!true", "!WITH_EDITOR", "!WITH_EDITORONLY_DATA" };
	return std::ranges::none_of(False, [&](const char* Text) { return Condition == Text; });
}
}

bool Conditionals::Read(const std::string& Directive, int Line)
{
	size_t Begin = Directive.find_first_not_of(" \t");
	Begin = Begin == std::string::npos ? Directive.size() : Begin;
	size_t End = Begin;
	while (End < Directive.size() && std::isalpha(static_cast<unsigned char>(Directive[End])))
	{
		End++;
	}
	const std::string Name = Directive.substr(Begin, End - Begin);
	const std::string Condition = Directive.substr(End);

	if (Name == "if" || Name == "ifdef" || Name == "ifndef")
	{
		Blocks.push_back({ Line, IsActive(), false, false });
		Branch(Name != "if" || IsTrue(Condition));
		return true;
	}
	if (Name != "elif" && Name != "else" && Name != "endif")
	{
		return false;
	}
	if (Blocks.empty())
	{
		throw SourceError(Line, "#" + Name + " without #if");
	}
	if (Name == "endif")
	{
		Blocks.pop_back();
	}
	else
	{
		Branch(Name == "else" || IsTrue(Condition));
	}
	return true;
}

void Conditionals::Branch(bool bCondition)
{
	Block& Current = Blocks.back();
	Current.bActive = Current.bOuterActive && !Current.bTaken && bCondition;
	Current.bTaken = Current.bTaken || Current.bActive;
}

void Conditionals::Finish() const
{
	if (!Blocks.empty())
	{
		throw SourceError(Blocks.back().Line, "#if without #endif");
	}
}
