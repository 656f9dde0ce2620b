#include "Scenario.h"

#include "NewId.h"

#include <algorithm>
#include <stdexcept>

namespace LocalService
{
namespace
{
bool Fits(const std::optional<bool>& Wanted, bool bActual)
{
	return !Wanted || *Wanted == bActual;
}

bool Fits(const ResultPattern& Wanted, const ToolResult& Result)
{
	return (!Wanted.Tool || *Wanted.Tool == Result.Tool) && (!Wanted.Content || Wanted.Content->IsFoundIn(Result.Content)) &&
		Fits(Wanted.bIsError, Result.bIsError) && Fits(Wanted.bIsAbort, Result.bIsAbort);
}

bool Fits(const Rule& Candidate, const Turn& Said)
{
	if (Candidate.Step && *Candidate.Step != Said.Step)
	{
		return false;
	}
	if (Candidate.Message && !(Said.Message && Candidate.Message->IsFoundIn(*Said.Message)))
	{
		return false;
	}
	return std::ranges::all_of(Candidate.Results,
		[&](const ResultPattern& Wanted)
		{ return std::ranges::any_of(Said.Results, [&](const ToolResult& Result) { return Fits(Wanted, Result); }); });
}

/** The text for what stands between the braces; nothing when it is no placeholder. */
std::optional<std::string> Resolve(const std::string& Name, const Turn& Said)
{
	constexpr std::string_view ResultPrefix = "result:";
	if (Name == "message")
	{
		return Said.Message.value_or("");
	}
	if (Name == "new_id")
	{
		return NewId();
	}
	if (!Name.starts_with(ResultPrefix))
	{
		return std::nullopt;
	}
	const std::string Tool = Name.substr(ResultPrefix.size());
	const auto Latest =
		std::find_if(Said.Results.rbegin(), Said.Results.rend(), [&](const ToolResult& Result) { return Result.Tool == Tool; });
	return Latest == Said.Results.rend() ? std::string() : Latest->Content;
}

std::string FillText(const std::string& Template, const Turn& Said)
{
	std::string Filled;
	size_t Position = 0;
	for (size_t Open; (Open = Template.find("{{", Position)) != std::string::npos;)
	{
		const size_t Close = Template.find("}}", Open);
		const auto Value = Close == std::string::npos ? std::nullopt : Resolve(Template.substr(Open + 2, Close - Open - 2), Said);
		// Braces of C++ sources are no placeholders: they stay, and the search goes on behind the first of them.
		Filled.append(Template, Position, Open - Position);
		Filled += Value ? *Value : "{";
		Position = Value ? Close + 2 : Open + 1;
	}
	return Filled.append(Template, Position);
}
}

Pattern::Pattern(const std::string& Expression)
	: Compiled(std::make_shared<const RE2>(Expression, RE2::Quiet))
{
	if (!Compiled->ok())
	{
		throw std::invalid_argument(Compiled->error());
	}
}

const Rule* Scenario::Find(const Turn& Said) const
{
	const auto Found = std::ranges::find_if(Rules, [&](const Rule& Candidate) { return Fits(Candidate, Said); });
	return Found == Rules.end() ? nullptr : &*Found;
}

Json FillIn(const Json& Template, const Turn& Said)
{
	if (Template.is_string())
	{
		return FillText(Template.get_ref<const std::string&>(), Said);
	}
	Json Copy = Template;
	if (Copy.is_structured())
	{
		for (Json& Element : Copy)
		{
			Element = FillIn(Element, Said);
		}
	}
	return Copy;
}
}
