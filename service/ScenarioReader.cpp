#include "Options.h"
#include "Scenario.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <sstream>

namespace LocalService
{
namespace
{
[[noreturn]] void Fail(const std::string& Where, const std::string& Problem)
{
	throw SetupError(Where + ": " + Problem);
}

/** One object of the file. Its fields are asked for by type; a wrong type or an unknown name is an error with the place. */
class Section
{
public:
	Section(const Json& InObject, std::string InWhere, std::initializer_list<std::string_view> Known)
		: Object(InObject)
		, Where(std::move(InWhere))
	{
		if (!Object.is_object())
		{
			Fail(Where, "expected an object");
		}
		for (const auto& [Name, Value] : Object.items())
		{
			if (std::find(Known.begin(), Known.end(), Name) == Known.end())
			{
				Fail(Place(Name), "unknown field");
			}
		}
	}

	std::string Place(const std::string& Name) const { return Where + ", field \"" + Name + "\""; }

	const Json* Find(const std::string& Name) const
	{
		const auto Found = Object.find(Name);
		return Found == Object.end() ? nullptr : &*Found;
	}

	std::optional<std::string> Text(const std::string& Name) const { return Get<std::string>(Name, &Json::is_string, "a string"); }
	std::optional<bool> Flag(const std::string& Name) const { return Get<bool>(Name, &Json::is_boolean, "true or false"); }
	std::optional<size_t> Count(const std::string& Name) const
	{
		return Get<size_t>(Name, &Json::is_number_unsigned, "a whole number from 0");
	}

	/** Not negative. */
	double Seconds(const std::string& Name) const
	{
		const double Value = Get<double>(Name, &Json::is_number, "a number of seconds").value_or(0);
		if (Value < 0)
		{
			Fail(Place(Name), "expected a number of seconds from 0");
		}
		return Value;
	}

	/** Empty when the field is absent. */
	Json List(const std::string& Name) const { return Get<Json>(Name, &Json::is_array, "an array").value_or(Json::array()); }

	std::optional<Pattern> Expression(const std::string& Name) const
	{
		const auto Source = Text(Name);
		try
		{
			return Source ? std::optional<Pattern>(*Source) : std::nullopt;
		}
		catch (const std::invalid_argument& Error)
		{
			Fail(Place(Name), "no regular expression: " + std::string(Error.what()));
		}
	}

	/** Reads each element of the list with `ReadOne(element, place)`. */
	template <typename FunctionType>
	void ForEach(const std::string& Name, FunctionType ReadOne) const
	{
		size_t Number = 0;
		for (const Json& Element : List(Name))
		{
			ReadOne(Element, Place(Name) + ", element " + std::to_string(++Number));
		}
	}

private:
	template <typename T>
	std::optional<T> Get(const std::string& Name, bool (Json::*IsRight)() const noexcept, const char* Expected) const
	{
		const Json* Value = Find(Name);
		if (!Value)
		{
			return std::nullopt;
		}
		if (!(Value->*IsRight)())
		{
			Fail(Place(Name), std::string("expected ") + Expected);
		}
		return Value->get<T>();
	}

	const Json& Object;
	std::string Where;
};

Fault ReadFault(const Section& From)
{
	Fault Read;
	Read.Delay = From.Seconds("delay");
	Read.bDrop = From.Flag("drop").value_or(false);
	Read.Cut = From.Count("cut");
	if (const auto Code = From.Count("code"))
	{
		if (*Code < 200 || *Code > 599)
		{
			Fail(From.Place("code"), "expected an HTTP status from 200 to 599");
		}
		Read.Code = static_cast<int>(*Code);
	}
	if (const Json* Body = From.Find("body"))
	{
		Read.Body = Body->is_string() ? Body->get<std::string>() : ToText(*Body);
	}
	return Read;
}

ResultPattern ReadResultPattern(const Json& Source, const std::string& Where)
{
	const Section From(Source, Where, { "tool", "content", "is_error", "is_abort" });
	return { From.Text("tool"), From.Expression("content"), From.Flag("is_error"), From.Flag("is_abort") };
}

Json ReadToolCall(const Section& From, const std::string& Tool)
{
	const Json* Input = From.Find("input");
	return {
		{ "type", "tool_use" },
		{ "name", Tool },
		{ "id", From.Text("id").value_or("{{new_id}}") },
		{ "input", Input ? *Input : Json::object() },
	};
}

Json ReadBlock(const Json& Source, const std::string& Where)
{
	if (Source.is_string())
	{
		return { { "type", "text" }, { "text", Source } };
	}
	const Section From(Source, Where, { "tool", "id", "input", "raw" });
	if (const Json* Raw = From.Find("raw"))
	{
		return *Raw;
	}
	const auto Tool = From.Text("tool");
	if (!Tool)
	{
		Fail(Where, "expected a text, or an object with \"tool\" or \"raw\"");
	}
	return ReadToolCall(From, *Tool);
}

void ReadConditions(const Section& From, Rule& Read)
{
	Read.Step = From.Text("step");
	Read.Message = From.Expression("message");
	From.ForEach(
		"results", [&](const Json& Element, const std::string& Where) { Read.Results.push_back(ReadResultPattern(Element, Where)); });
}

void ReadAnswer(const Section& From, Rule& Read)
{
	From.ForEach("answer", [&](const Json& Element, const std::string& Where) { Read.Blocks.push_back(ReadBlock(Element, Where)); });
	Read.bAutoContinue = From.Flag("auto_continue");
	if (From.Find("messages"))
	{
		Read.Messages = From.List("messages");
	}
	Read.Failure = From.Text("fail");
	if (Read.Failure && From.Find("answer"))
	{
		Fail(From.Place("fail"), "a rule has an answer or fails, not both");
	}
	Read.Takes = From.Seconds("takes");
	Read.Polls = From.Count("polls").value_or(0);
	Read.Next = From.Text("next");
}

void ReadFaults(const Section& From, Rule& Read)
{
	if (const Json* Source = From.Find("command_fault"))
	{
		Read.CommandFault = ReadFault(Section(*Source, From.Place("command_fault"), { "delay", "drop", "code", "body", "cut" }));
	}
	From.ForEach("status_faults",
		[&](const Json& Element, const std::string& Where)
		{
		const Section Source(Element, Where, { "delay", "drop", "code", "body", "cut", "times" });
		Read.StatusFaults.insert(Read.StatusFaults.end(), Source.Count("times").value_or(1), ReadFault(Source));
	});
}

Rule ReadRule(const Json& Source, const std::string& Where)
{
	const Section From(Source, Where,
		{ "name", "step", "message", "results", "answer", "auto_continue", "messages", "fail", "takes", "polls", "next", "command_fault",
			"status_faults" });
	// The name is for the reader of the file and for errors alone.
	(void)From.Text("name");
	Rule Read;
	ReadConditions(From, Read);
	ReadAnswer(From, Read);
	ReadFaults(From, Read);
	return Read;
}

std::string RulePlace(const std::string& Path, size_t Number, const Json& Source)
{
	const bool bNamed = Source.is_object() && Source.contains("name") && Source["name"].is_string();
	return Path + ": rule " + std::to_string(Number) + (bNamed ? " (\"" + Source["name"].get<std::string>() + "\")" : "");
}

Json ReadFile(const std::string& Path)
{
	std::ifstream In(Path, std::ios::binary);
	std::ostringstream Content;
	if (!In || !(Content << In.rdbuf()))
	{
		Fail(Path, "cannot be read, or is empty");
	}
	try
	{
		return Json::parse(Content.str());
	}
	catch (const Json::parse_error& Error)
	{
		// The library's text begins with a tag in brackets; line and column come behind it.
		const std::string Text = Error.what();
		Fail(Path, Text.substr(Text.find("] ") + 2));
	}
}
}

Scenario Scenario::Read(const std::string& Path)
{
	const Json Source = ReadFile(Path);
	const Section Top(Source, Path, { "about", "rules" });
	Scenario Result;
	size_t Number = 0;
	for (const Json& Element : Top.List("rules"))
	{
		Result.Rules.push_back(ReadRule(Element, RulePlace(Path, ++Number, Element)));
	}
	if (Result.Rules.empty())
	{
		Fail(Top.Place("rules"), "expected at least one rule");
	}
	return Result;
}
}
