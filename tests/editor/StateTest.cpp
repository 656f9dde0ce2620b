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
			"Bye.", { "tool": "finish", "id": "end" }, { "tool": "read_file", "id": "behind", "input": { "path": "Toy.uproject" } } ] },
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
const char* const FirstResult = R"({"type":"tool_result","tool_use_id":"one","content":"File created successfully: A.txt","is_error":false})";
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
				Lines{ "> AwaitingUpdate", Sending, "> AwaitingUpdate", "> PollRequest", "waited PollRequest", Processing, "> PollResponse" } +
				Lines{ "assistant| [ Kestrin ] \n\nGood night.\n" } + Entered("AwaitingUpdate"),
			{ R"({"message":"last","file_structure":"TREE","is_confirmation_mode":true})",
				R"({"message":"","tool_results":[{"type":"tool_result","tool_use_id":"end","content":"Finished","is_error":false}],"was_confirmed":false})" } },
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
		Session Editor(Toy);
		EXPECT_EQ(Transcript(Editor.Run(Case.Commands)), Case.Seen);
		Lines Bodies;
		for (const Json& Body : PostedBodies(Service))
		{
			Bodies.push_back(Body.dump());
		}
		EXPECT_EQ(Bodies, Case.Bodies);
	}
}
}
