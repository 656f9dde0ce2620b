#include "Support/Session.h"

#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

namespace
{
std::vector<std::string> WithProject(const Project& In, std::vector<std::string> Options)
{
	if (std::ranges::find(Options, "--window") == Options.end())
	{
		Options.insert(Options.begin(), "--headless");
	}
	Options.insert(Options.begin(), In.GetFile());
	return Options;
}

/** The fields of each event, in their order. */
const std::vector<std::pair<std::string, std::vector<std::string>>> EventFields = {
	{ "ready", { "project", "version", "plugin" } },
	{ "status", { "text", "look", "color", "font", "size" } },
	{ "diff", { "path", "old", "new" } },
	{ "state",
		{ "state", "conversation_id", "undo_conversation_id", "redo_conversation_id", "pause_requested", "auto_continue", "can_undo",
			"can_redo", "pending_tools", "tool_results" } },
	{ "tool", { "name", "id", "content", "is_error" } },
	{ "waited", { "state", "timed_out" } },
	{ "transactions", { "titles", "undone" } },
	{ "widgets", { "root", "focus", "at_end" } },
	{ "error", { "message" } },
};

void CheckFields(const Json& Event)
{
	const auto Known = std::ranges::find(EventFields, Event.value("event", ""), &std::pair<std::string, std::vector<std::string>>::first);
	ASSERT_NE(Known, EventFields.end()) << Event;
	std::vector<std::string> Expected{ "event" };
	Expected.insert(Expected.end(), Known->second.begin(), Known->second.end());
	std::vector<std::string> Fields;
	for (const auto& [Name, Value] : Event.items())
	{
		Fields.push_back(Name);
	}
	EXPECT_EQ(Fields, Expected) << Event;
}

/** Every chat line has one of three looks, and each look one colour, font and size. */
void CheckLook(const Json& Event)
{
	struct Look
	{
		const char* Name;
		std::vector<float> Color;
		const char* Font;
		double Size;
	};
	static const Look Looks[] = {
		{ "user", { 0.25882354f, 0.52156866f, 0.95686275f, 1 }, "Regular", 10 },
		{ "assistant", { 0.9764706f, 0.6117647f, 0.22352941f, 1 }, "Bold", 10 },
		{ "progress", { 1, 1, 1, 0 }, "Italic", 8 },
	};
	const auto Known = std::ranges::find(Looks, Event.value("look", ""), [](const Look& In) { return std::string(In.Name); });
	ASSERT_NE(Known, std::end(Looks)) << Event;
	EXPECT_EQ(Event["color"].get<std::vector<float>>(), Known->Color) << Event;
	EXPECT_EQ(Event["font"], Known->Font) << Event;
	EXPECT_EQ(Event["size"], Known->Size) << Event;
}

std::string Describe(const Json& Event)
{
	const std::string Kind = Event["event"];
	if (Kind == "status")
	{
		return Event["look"].get<std::string>() + "|" + Event["text"].get<std::string>();
	}
	if (Kind == "state")
	{
		return "> " + Event["state"].get<std::string>();
	}
	if (Kind == "waited")
	{
		return Event["timed_out"].get<bool>() ? "timed out" : "waited " + Event["state"].get<std::string>();
	}
	if (Kind == "diff" || Kind == "tool")
	{
		return Kind + "|" + Event[Kind == "diff" ? "path" : "content"].get<std::string>();
	}
	return Kind;
}
}

Session::Session(const Project& In, std::vector<std::string> Options)
	: Editor(WithProject(In, std::move(Options)))
	, Ready(Next())
{
	EXPECT_EQ(Ready.is_null() ? "" : Ready.value("event", ""), "ready");
}

Session::~Session()
{
	if (Editor.IsRunning())
	{
		End();
	}
}

Json Session::Next(double Seconds)
{
	const std::optional<std::string> Line = Editor.ReadLine(Seconds);
	if (!Line)
	{
		return nullptr;
	}
	Json Event = Json::parse(*Line, nullptr, false);
	if (!Event.is_object())
	{
		ADD_FAILURE() << "No event: " << *Line;
		return Json::object();
	}
	CheckFields(Event);
	if (Event.value("event", "") == "status")
	{
		CheckLook(Event);
	}
	return Event;
}

std::vector<Json> Session::Until(const std::string& Event)
{
	std::vector<Json> Events;
	do
	{
		Events.push_back(Next());
		if (Events.back().is_null())
		{
			Events.pop_back();
			const Ending Result = Editor.Finish(1);
			throw std::runtime_error("No event \"" + Event + "\" came, but " + ::testing::PrintToString(Transcript(Events)) +
				"; exit code " + std::to_string(Result.Code) + ", " + Result.Error);
		}
	} while (Events.back().value("event", "") != Event);
	return Events;
}

std::vector<Json> Session::Run(const std::vector<Json>& Commands)
{
	size_t Waits = 1;
	for (const Json& Command : Commands)
	{
		Waits += Command.value("do", "") == "wait";
		Send(Command);
	}
	// Commands run in order and this one answers at once: when it does, those before it are done.
	Send({ { "do", "wait" }, { "state", Json::array() } });
	std::vector<Json> Events;
	while (Waits-- > 0)
	{
		const std::vector<Json> More = Until("waited");
		Events.insert(Events.end(), More.begin(), More.end());
	}
	Events.pop_back();
	return Events;
}

std::vector<Json> Session::End(int ExitCode)
{
	Editor.CloseInput();
	std::vector<Json> Events;
	for (Json Event = Next(); !Event.is_null(); Event = Next())
	{
		Events.push_back(std::move(Event));
	}
	const Ending Result = Editor.Finish();
	EXPECT_EQ(Result.Code, ExitCode) << Result.Error;
	EXPECT_EQ(Result.Out, "") << "The last line has no end.";
	return Events;
}

Json Do(const std::string& Name)
{
	return { { "do", Name } };
}

Json Do(const std::string& Name, const std::string& Text)
{
	return { { "do", Name }, { "text", Text } };
}

Json Set(const std::string& Name, const Json& Value)
{
	return { { "do", "set" }, { "name", Name }, { "value", Value } };
}

Json WaitFor(const std::string& State)
{
	return { { "do", "wait" }, { "state", { State } }, { "timeout", 20 } };
}

std::vector<std::string> Transcript(const std::vector<Json>& Events)
{
	std::vector<std::string> Lines;
	for (const Json& Event : Events)
	{
		std::string Line = Describe(Event);
		const bool bPoll = Line == Processing || Line == "progress|Pausing request...";
		if (Lines.empty() || Line != Lines.back() || !bPoll)
		{
			Lines.push_back(std::move(Line));
		}
	}
	return Lines;
}

std::vector<Json> PostedBodies(const ServiceProcess& Service)
{
	std::vector<Json> Bodies;
	for (const Json& Request : LoggedRequests(Service, "POST"))
	{
		Bodies.push_back(Request.value("body", Json()));
		if (Bodies.back().is_object() && Bodies.back().contains("file_structure"))
		{
			Bodies.back()["file_structure"] = "TREE";
		}
	}
	return Bodies;
}

std::vector<Json> LoggedRequests(const ServiceProcess& Service, const std::string& Method)
{
	std::vector<Json> Requests;
	for (Json& Request : Service.GetLog())
	{
		if (Request.value("method", "") == Method)
		{
			Requests.push_back(std::move(Request));
		}
	}
	return Requests;
}
