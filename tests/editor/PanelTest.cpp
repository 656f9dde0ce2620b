#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** The chat panel as a script drives it, without a window. */
namespace
{
using Lines = std::vector<std::string>;

Json Key(const char* Name, bool Shift)
{
	return { { "do", "key" }, { "key", Name }, { "shift", Shift } };
}

Json Click(const char* Button)
{
	return { { "do", "click" }, { "button", Button } };
}

Json Widgets(Session& Editor)
{
	Editor.Send(Do("widgets"));
	return Editor.Until("widgets").back();
}

void Collect(const Json& Widget, const char* Type, std::vector<Json>& Found)
{
	if (Widget["type"] == Type)
	{
		Found.push_back(Widget);
	}
	for (const Json& Child : Widget["children"])
	{
		Collect(Child, Type, Found);
	}
}

/** The texts of the chat's blocks, and of the input at the end. */
Lines Texts(const Json& Event)
{
	std::vector<Json> Found;
	Collect(Event["root"], "SMultiLineEditableText", Found);
	Lines Result;
	for (const Json& Widget : Found)
	{
		Result.push_back(Widget["props"]["text"]);
	}
	return Result;
}

const Json& AtFocus(const Json& Event)
{
	const Json* Widget = &Event["root"];
	for (const Json& Index : Event["focus"])
	{
		Widget = &(*Widget)["children"][Index.get<size_t>()];
	}
	return *Widget;
}

const Json Says = Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])");

TEST(HeadlessPanel, AConversationGoesThroughThePanelAndTheEvents)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	EXPECT_EQ(Transcript(Editor.Run({ { { "do", "command" }, { "name", "OpenPluginWindow" } }, Do("panel") })), Lines());
	const Json Fresh = Widgets(Editor);
	EXPECT_EQ(Fresh["root"]["type"], "SKestrinWidget");
	EXPECT_TRUE(Fresh["focus"].is_null());
	EXPECT_EQ(Fresh["at_end"], true);

	EXPECT_EQ(Transcript(Editor.Run({ Do("type", "one"), Key("Enter", true), Do("type", "two") })), Lines());
	const Json Typed = Widgets(Editor);
	EXPECT_EQ(Texts(Typed).back(), "one\ntwo");
	EXPECT_EQ(AtFocus(Typed)["props"]["hint"], "Enter your prompt here...");

	const Lines Seen = Transcript(Editor.Run({ Click("[ Start ]"), WaitFor("AwaitingUpdate") }));
	EXPECT_EQ(std::ranges::count(Seen, "assistant| [ Kestrin ] \n\nGood.\n"), 1);
	EXPECT_EQ(PostedBodies(Service)[0]["message"], "one\ntwo");
	Lines Shown = Texts(Widgets(Editor));
	Shown.erase(Shown.begin());
	EXPECT_EQ(Shown, (Lines{ " [ User Start ]\n\none\ntwo\n", " [ Kestrin ] \n\nGood.\n", "" }));

	EXPECT_EQ(Transcript(Editor.Run({ Click("[ Start ]"), Click("Pause"), Click("Nothing"), Key("Entre", false) })),
		(Lines{ "error", "error", "error", "error" }));
	EXPECT_EQ(Transcript(Editor.Run({ Do("scroll"), Do("type", "more"), Key("Enter", false), Do("type", "x") })),
		(Lines{ "user| [ User ]\n\nmore\n", Sending, "> Continue", "error" }));
	Editor.Run({ Click("[ End ]") });
	EXPECT_EQ(std::ranges::count(Transcript(Editor.End()), "user| [ Cancelled ]"), 1);
}
}
