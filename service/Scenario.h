#pragma once

#include "Json.h"

#include <re2/re2.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace LocalService
{
/** A regular expression that is searched for in a text, in a time that grows with the text's length and no faster. */
class Pattern
{
public:
	/** Throws std::invalid_argument. */
	explicit Pattern(const std::string& Expression);

	bool IsFoundIn(const std::string& Text) const { return RE2::PartialMatch(Text, *Compiled); }

private:
	std::shared_ptr<const RE2> Compiled;
};

/** What happens to one answer of the service on its way out. The default changes nothing. */
struct Fault
{
	/** Seconds that the answer is held back. */
	double Delay = 0;
	/** The connection closes without an answer. */
	bool bDrop = false;
	std::optional<int> Code;
	std::optional<std::string> Body;
	/** This many bytes of the body go out, then the connection closes. */
	std::optional<size_t> Cut;
};

/** What one element of `tool_results` must be; parts that are absent fit everything. */
struct ResultPattern
{
	std::optional<std::string> Tool;
	std::optional<Pattern> Content;
	std::optional<bool> bIsError;
	std::optional<bool> bIsAbort;
};

/** One rule: when it fits a command, and what becomes of that command. */
struct Rule
{
	std::optional<std::string> Step;
	std::optional<Pattern> Message;
	/** Each must fit at least one result. */
	std::vector<ResultPattern> Results;

	/** The blocks of the answer as they go over the wire, but for placeholders. */
	Json Blocks = Json::array();
	std::optional<bool> bAutoContinue;
	std::optional<Json> Messages;
	/** The work fails with this text instead. */
	std::optional<std::string> Failure;
	/** Seconds of work, and the least number of polls that find it unfinished. */
	double Takes = 0;
	size_t Polls = 0;
	std::optional<std::string> Next;

	Fault CommandFault;
	/** For the first, second, ... poll of the command. */
	std::vector<Fault> StatusFaults;
};

/** One element of `tool_results`. `Tool` is the name in the call that it answers; for an id that was never given out, the id. */
struct ToolResult
{
	std::string Tool;
	std::string Content;
	bool bIsError = false;
	bool bIsAbort = false;
};

/** What one command says, and where its conversation stands. */
struct Turn
{
	std::string Step;
	/** Absent when the command has none: results alone. */
	std::optional<std::string> Message;
	std::vector<ToolResult> Results;
};

/** The rules for all answers. Immutable, so that threads may share it. */
class Scenario
{
public:
	/** The step of a conversation that no rule has moved. */
	static constexpr const char* FirstStep = "start";

	/** Throws SetupError with the file, the rule and the field. */
	static Scenario Read(const std::string& Path);

	/** The first rule that fits; null when none does. */
	const Rule* Find(const Turn& Said) const;

private:
	std::vector<Rule> Rules;
};

/** A copy with the placeholders of all its strings filled: `{{message}}`, `{{result:TOOL}}` (the latest of that tool), `{{new_id}}`. */
Json FillIn(const Json& Template, const Turn& Said);
}
