#include "Support/Session.h"

#include <gtest/gtest.h>

/** The states of a conversation and what moves it from one to the next, as lines, states and bodies. */
namespace
{
using Lines = std::vector<std::string>;

Json Rules()
{
	return Json::parse(R"([
		{ "message": "^ask", "answer": [ "Shall I?" ] },
		{ "message": "^say", "answer": [ "It is done." ], "auto_continue": true },
		{ "message": "^none", "answer": [] },
		{ "message": "^tools", "answer": [
			"Two files.",
			{ "tool": "create_file", "id": "one", "input": { "path": "A.txt", "file_text": "a" } },
			{ "tool": "create_file", "id": "two", "input": { "path": "B.txt", "file_text": "b" } } ] },
		{ "message": "^run", "auto_continue": true, "answer": [
			{ "tool": "read_file", "id": "read", "input": { "path": "Source/Toy/Toy.cpp" } }, "Read." ] },
		{ "message": "^finish", "auto_continue": true, "answer": [
			"Bye.", { "tool": "finish", "id": "end" }, { "tool": "read_file", "id": "behind", "input": { "path": "Toy.txt" } } ] },
		{ "message": "^last", "answer": [ { "tool": "finish", "id": "end" } ] },
		{ "message": "^hang", "status_faults": [ { "body": { "status": "COMPLETED", "response": { "messages": [] } } } ] },
		{ "message": "^slow", "command_fault": { "delay": 0.7 }, "answer": [ "Slow." ], "auto_continue": true },
		{ "message": "^long", "polls": 100000 },
		{ "message": "^wait", "polls": 2, "answer": [ "After a while.", { "tool": "finish", "id": "later" } ] },
		{ "message": "^fail", "fail": "No oil." },
		{ "results": [ { "content": "Finished" } ], "answer": [ "Good night." ], "auto_continue": true },
		{ "answer": [ "Thanks." ] }
	])");
}

Lines operator+(Lines Left, const Lines& Right)
{
	Left.insert(Left.end(), Right.begin(), Right.end());
	return Left;
}

Lines Started(const std::string& Text)
{
	return { "user| [ User Start ]\n\n" + Text + "\n", Sending, "> InitialRequest" };
}

/** From the service's acceptance to the answer; its text line, when it has one. */
Lines Answered(const std::string& Text = {})
{
	const Lines Polled = { "> PollRequest", Processing, "> PollResponse" };
	return Text.empty() ? Polled : Polled + Lines{ "assistant| [ Kestrin ] \n\n" + Text + "\n" };
}

Lines Entered(const std::string& State)
{
	return { "> " + State, "waited " + State };
}

const Lines Resumed = { "user| [ User ]\n\nThe process has been resumed.\n" };
const std::string Pausing = "progress|Pausing request...";
const Lines SentOn = { Sending, "> Continue" };
const Json Implementer = Set("Mode", "ExplainerAndImplementerMode");

struct Story
{
	const char* Name;
	std::vector<Json> Commands;
	Lines Seen;
	/** Bodies of the POSTs as text. */
	std::vector<std::string> Bodies;
};

const char* const AskBody = R"({"message":"ask","file_structure":"TREE","is_confirmation_mode":true})";
const char* const ToolsBody = R"({"message":"tools","file_structure":"TREE","is_confirmation_mode":true})";
const char* const FirstResult =
	R"({"type":"tool_result","tool_use_id":"one","content":"File created successfully: A.txt","is_error":false})";
const char* const SecondResult =
	R"({"type":"tool_result","tool_use_id":"two","content":"File created successfully: B.txt","is_error":false})";

std::vector<Story> Stories()
{
	const Lines Asked = Started("ask") + Answered("Shall I?") + Entered("AwaitingApproval");
	const Lines Said = Started("say") + Answered("It is done.") + Entered("AwaitingUpdate");
	const Lines Queued = Started("tools") + Answered("Two files.") + Entered("AwaitingApproval");
	const Lines Created = { "progress|Creating File...", "diff|A.txt", "progress|Creating File...", "diff|B.txt" };
	return {
		{ "a text waits for approval", { Do("start", "ask"), WaitFor("AwaitingApproval") }, Asked, { AskBody } },
		{ "approval leads nowhere, and the conversation goes on from there",
			{ Do("start", "ask"), WaitFor("AwaitingApproval"), Do("approve"), Do("approve"), Do("continue", "none"),
				WaitFor("AwaitingApproval") },
			Asked + Lines{ "> Approved", "user| [ User ]\n\nnone\n" } + SentOn + Answered() + Entered("AwaitingApproval"),
			{ AskBody, R"({"message":"none","was_confirmed":true})" } },
		{ "a text that continues by itself waits for the next prompt",
			{ Do("start", "say"), WaitFor("AwaitingUpdate"), Do("regular", "ask \"on\"\n"), WaitFor("AwaitingApproval") },
			Said + Lines{ "user| [ User ]\n\nask \"on\"\n\n", Sending, "> RegularRequest" } + Answered("Shall I?") +
				Entered("AwaitingApproval"),
			{ R"({"message":"say","file_structure":"TREE","is_confirmation_mode":true})", R"({"message":"ask \"on\"\n"})" } },
		{ "queued calls run when the user continues without a text",
			{ Do("start", "tools"), WaitFor("AwaitingApproval"), Do("continue", ""), WaitFor("AwaitingApproval") },
			Queued + Resumed + Created + SentOn + Answered("Thanks.") + Entered("AwaitingApproval"),
			{ ToolsBody,
				std::string(R"({"message":"","tool_results":[)") + FirstResult + "," + SecondResult + R"(],"was_confirmed":true})" } },
		{ "queued calls are aborted for a text",
			{ Do("start", "tools"), WaitFor("AwaitingApproval"), Do("continue", "none of it"), WaitFor("AwaitingApproval") },
			Queued + Lines{ "user| [ User ]\n\nnone of it\n" } + SentOn + Answered() + Entered("AwaitingApproval"),
			{ ToolsBody,
				R"({"message":"none of it","tool_results":[{"type":"tool_result","tool_use_id":"one","content":"Abort: User added new input","is_abort":true},{"type":"tool_result","tool_use_id":"two","content":"Abort: User added new input","is_abort":true}],"was_confirmed":true})" } },
		{ "a queued finish takes the confirmation back",
			{ Do("start", "last"), WaitFor("AwaitingApproval"), Do("continue", ""), WaitFor("PollRequest"), WaitFor("AwaitingUpdate") },
			Started("last") + Answered() + Entered("AwaitingApproval") + Resumed +
				Lines{
					"> AwaitingUpdate", Sending, "> AwaitingUpdate", "> PollRequest", "waited PollRequest", Processing, "> PollResponse" } +
				Lines{ "assistant| [ Kestrin ] \n\nGood night.\n" } + Entered("AwaitingUpdate"),
			{ R"({"message":"last","file_structure":"TREE","is_confirmation_mode":true})",
				R"({"message":"","tool_results":[{"type":"tool_result","tool_use_id":"end","content":"Finished","is_error":false}],"was_confirmed":false})" } },
		{ "queued calls wait while a finish ends the turn",
			{ Do("start", "finish"), WaitFor("AwaitingUpdate"), WaitFor("PollRequest"), WaitFor("AwaitingUpdate"), Do("continue", ""),
				WaitFor("AwaitingApproval") },
			Started("finish") + Answered("Bye.") +
				Lines{ "> AwaitingUpdate", Sending, "waited AwaitingUpdate", "> PollRequest", "waited PollRequest", Processing,
					"> PollResponse", "assistant| [ Kestrin ] \n\nGood night.\n" } +
				Entered("AwaitingUpdate") + Resumed + Lines{ "progress|Reading File..." } + SentOn + Answered("Thanks.") +
				Entered("AwaitingApproval"),
			{ R"({"message":"finish","file_structure":"TREE","is_confirmation_mode":true})",
				R"({"tool_results":[{"type":"tool_result","tool_use_id":"end","content":"Finished","is_error":false}],"was_confirmed":false})",
				R"({"message":"","tool_results":[{"type":"tool_result","tool_use_id":"behind","content":"A toy.","is_error":false}],"was_confirmed":true})" } },
		{ "calls of an answer that continues by itself run before the text behind them",
			{ Do("start", "run"), WaitFor("AwaitingApproval") },
			Started("run") + Answered() + Lines{ "progress|Reading File...", "assistant| [ Kestrin ] \n\nRead.\n", Sending } +
				Answered("Thanks.") + Entered("AwaitingApproval"),
			{ R"({"message":"run","file_structure":"TREE","is_confirmation_mode":true})",
				R"({"tool_results":[{"type":"tool_result","tool_use_id":"read","content":"int Oil = 3;\n","is_error":false}],"was_confirmed":true})" } },
		{ "calls run at once in the implementer's mode, and a text ends its turn",
			{ Implementer, Do("start", "tools"), WaitFor("AwaitingUpdate") },
			Started("tools") + Answered("Two files.") + Created + Lines{ Sending } + Answered("Thanks.") + Entered("AwaitingUpdate"),
			{ R"({"message":"tools","file_structure":"TREE","is_confirmation_mode":false})",
				std::string(R"({"tool_results":[)") + FirstResult + "," + SecondResult + "]}" } },
		{ "a pause takes effect at the answer, in the implementer's mode too",
			{ Implementer, Do("start", "wait"), WaitFor("PollRequest"), Do("pause"), WaitFor("Pause"), Do("continue", "ask"),
				WaitFor("AwaitingUpdate") },
			Started("wait") +
				Lines{ "> PollRequest", "waited PollRequest", Pausing, "> PollResponse", "assistant| [ Kestrin ] \n\nAfter a while.\n",
					"user| [ User ]\n\nThe process has been paused.\n" } +
				Entered("Pause") + Lines{ "user| [ User ]\n\nask\n" } + SentOn + Answered("Shall I?") + Entered("AwaitingUpdate"),
			{ R"({"message":"wait","file_structure":"TREE","is_confirmation_mode":false})",
				R"({"message":"ask","tool_results":[{"type":"tool_result","tool_use_id":"later","content":"Abort: User added new input","is_abort":true}],"was_confirmed":true})" } },
		{ "a pause wins over an answer that continues by itself, and resuming runs what it held",
			{ Do("start", "finish"), WaitFor("PollRequest"), Do("pause"), WaitFor("Pause"), Do("continue", ""), WaitFor("PollRequest"),
				WaitFor("AwaitingUpdate") },
			Started("finish") +
				Lines{ "> PollRequest", "waited PollRequest", Pausing, "> PollResponse", "assistant| [ Kestrin ] \n\nBye.\n",
					"user| [ User ]\n\nThe process has been paused.\n" } +
				Entered("Pause") + Resumed +
				Lines{ "> AwaitingUpdate", "progress|Reading File...", Sending, "> AwaitingUpdate", "> PollRequest", "waited PollRequest",
					Processing, "> PollResponse", "assistant| [ Kestrin ] \n\nGood night.\n" } +
				Entered("AwaitingUpdate"),
			{ R"({"message":"finish","file_structure":"TREE","is_confirmation_mode":true})",
				R"({"message":"","tool_results":[{"type":"tool_result","tool_use_id":"end","content":"Finished","is_error":false},{"type":"tool_result","tool_use_id":"behind","content":"A toy.","is_error":false}],"was_confirmed":false})" } },
		{ "a command that comes before any conversation is sent all the same", { Do("continue", ""), WaitFor("AwaitingApproval") },
			Resumed + SentOn + Answered("Thanks.") + Entered("AwaitingApproval"), { R"({"message":"","was_confirmed":true})" } },
		{ "work that fails cancels", { Do("start", "fail"), WaitFor("PollRequest"), WaitFor("Idle") },
			Started("fail") +
				Lines{ "> PollRequest", "waited PollRequest", Processing, "user| [ Cancelled ]\n\nRequest failed: No oil.\n", "> Idle" } +
				Entered("Idle"),
			{ R"({"message":"fail","file_structure":"TREE","is_confirmation_mode":true})" } },
	};
}

TEST(Conversation, MovesAsItsTableSays)
{
	for (const Story& Case : Stories())
	{
		SCOPED_TRACE(Case.Name);
		const ServiceProcess Service(Rules());
		const Project Toy;
		Toy.Connect(Service);
		Toy.Write("Toy.txt", "A toy.");
		Session Editor(Toy);
		EXPECT_EQ(Editor.GetState(), "Idle");
		EXPECT_EQ(Transcript(Editor.Run(Case.Commands)), Case.Seen);
		Lines Bodies;
		for (const Json& Body : PostedBodies(Service))
		{
			Bodies.push_back(Body.dump());
		}
		EXPECT_EQ(Bodies, Case.Bodies);
	}
}

struct Place
{
	const char* State;
	std::vector<Json> Way;
	/** What of these commands is taken there; the others must leave no trace. */
	std::string Taken;
};

/** Every state in which a command can meet the agent, and how to get there from Idle. */
std::vector<Place> Places()
{
	return {
		{ "Idle", {}, "start" },
		{ "InitialRequest", { Do("start", "slow") }, "" },
		{ "PollRequest", { Do("start", "long"), WaitFor("PollRequest") }, "" },
		{ "PollResponse", { Do("start", "hang"), WaitFor("PollResponse") }, "" },
		{ "AwaitingApproval", { Do("start", "ask"), WaitFor("AwaitingApproval") }, "approve" },
		{ "Approved", { Do("start", "ask"), WaitFor("AwaitingApproval"), Do("approve") }, "" },
		{ "Continue", { Do("start", "ask"), WaitFor("AwaitingApproval"), Do("continue", "slow") }, "continue" },
		{ "AwaitingUpdate", { Do("start", "say"), WaitFor("AwaitingUpdate") }, "regular" },
		{ "RegularRequest", { Do("start", "say"), WaitFor("AwaitingUpdate"), Do("regular", "slow") }, "" },
		{ "Pause", { Do("start", "wait"), WaitFor("PollRequest"), Do("pause"), WaitFor("Pause") }, "" },
	};
}

TEST(Conversation, TakesAPromptAndAnApprovalOnlyWhereTheyBelong)
{
	const ServiceProcess Service(Rules());
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	for (const Place& Case : Places())
	{
		SCOPED_TRACE(Case.State);
		Editor.Run(Case.Way);
		ASSERT_EQ(Editor.GetState(), Case.State);
		const size_t Posts = PostedBodies(Service).size();
		for (const Json& Command : { Do("start", "ask"), Do("regular", "ask"), Do("approve") })
		{
			if (Command["do"] != Case.Taken)
			{
				for (const std::string& Line : Transcript(Editor.Run({ Command })))
				{
					EXPECT_EQ(Line, Processing) << Command;
				}
			}
		}
		EXPECT_EQ(Editor.GetState(), Case.State);
		EXPECT_EQ(PostedBodies(Service).size(), Posts);
		Editor.Run({ Do("end", "") });
	}
}

TEST(Conversation, EndsAndIsCancelledFromEveryState)
{
	struct
	{
		Json Command;
		const char* Line;
	} const Ways[] = {
		{ Do("end", ""), "user| [ User End ]" },
		{ Do("end", "So long."), "user| [ User End ]\n\nSo long." },
		{ Do("cancel", ""), "user| [ Cancelled ]" },
		{ Do("cancel", "No more."), "user| [ Cancelled ]\n\nNo more.\n" },
	};
	const ServiceProcess Service(Rules());
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	size_t Turn = 0;
	for (const Place& Case : Places())
	{
		for (int Round = 0; Round < 2; ++Round)
		{
			SCOPED_TRACE(Case.State);
			const auto& [Command, Line] = Ways[Turn++ % std::size(Ways)];
			Editor.Run(Case.Way);
			const Json Before = Editor.Query();
			ASSERT_EQ(Before["state"], Case.State);
			EXPECT_EQ(Transcript(Editor.Run({ Command })), (Lines{ Line, "> Idle", "> Idle" }));
			const Json After = Editor.Query();
			EXPECT_EQ(After["conversation_id"], "");
			EXPECT_EQ(After["undo_conversation_id"], Before["undo_conversation_id"]);
			EXPECT_EQ(After["pending_tools"], Before["pending_tools"]);
			EXPECT_EQ(After["pause_requested"], false);
			EXPECT_EQ(After["auto_continue"], false);
		}
		++Turn;
	}
	// Answers to what was given up are on their way still.
	EXPECT_EQ(Transcript(Editor.Run({ { { "do", "tick" }, { "seconds", ClockRate } } })), Lines());
}

TEST(Conversation, ContinuesFromEveryStateButContinueItself)
{
	const ServiceProcess Service(Rules());
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	for (const Place& Case : Places())
	{
		SCOPED_TRACE(Case.State);
		Editor.Run(Case.Way);
		ASSERT_EQ(Editor.GetState(), Case.State);
		Lines Seen = Transcript(Editor.Run({ Do("continue", "say on") }));
		std::erase(Seen, Processing);
		const bool bIgnored = Case.Taken == "continue";
		EXPECT_EQ(Seen, bIgnored ? Lines() : Lines{ "user| [ User ]\n\nsay on\n" } + SentOn);
		Editor.Run({ WaitFor("AwaitingUpdate"), Do("end", "") });
	}
}

TEST(Conversation, LeavesItsQueueToTheNextContinueButNotToTheNextConversation)
{
	const ServiceProcess Service(Rules());
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	Editor.Run({ Do("start", "tools"), WaitFor("AwaitingApproval"), Do("end", "") });
	EXPECT_EQ(Editor.Query()["pending_tools"].dump(), R"(["create_file","create_file"])");
	Editor.Run({ Do("start", "ask"), WaitFor("AwaitingApproval") });
	EXPECT_EQ(Editor.Query()["pending_tools"].dump(), "[]");
	EXPECT_FALSE(Toy.Has("A.txt"));
}

TEST(Conversation, KeepsOneIdFromItsStartToItsEnd)
{
	const ServiceProcess Service(Rules());
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	std::string Earlier;
	for (int Round = 0; Round < 2; ++Round)
	{
		const Json Started = Editor.Run({ Do("start", "say"), WaitFor("AwaitingUpdate"), Do("query") }).back();
		const std::string Id = Started["conversation_id"];
		EXPECT_EQ(Id.size(), 32u);
		EXPECT_EQ(Id.find_first_not_of("0123456789ABCDEF"), std::string::npos) << Id;
		EXPECT_NE(Id, Earlier);
		const Json Later = Editor.Run({ Do("regular", "say more"), WaitFor("PollRequest"), WaitFor("AwaitingUpdate"), Do("query") }).back();
		EXPECT_EQ(Later["conversation_id"], Id);
		EXPECT_EQ(Later["undo_conversation_id"], Id);
		Editor.Run({ Do("end", "") });
		Earlier = Id;
	}
}
}
