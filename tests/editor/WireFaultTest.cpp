#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** A wire and a service that misbehave: what the user sees, and that the conversation can go on or start again. */
namespace
{
using Lines = std::vector<std::string>;

const Json Says = Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])");

/** Rules that spoil the answer to a prompt "spoil"; other prompts are answered. */
Json Spoiled(const Json& Rule)
{
	Json Rules = Json::array({ Rule });
	Rules[0]["message"] = "spoil";
	Rules.push_back(Says[0]);
	return Rules;
}

Lines Refused(const std::string& Text)
{
	return { "user| [ User Start ]\n\nspoil\n", Sending, "> InitialRequest", "user| [ Cancelled ]\n\n" + Text + "\n", "> Idle", "> Idle",
		"waited Idle" };
}

/** Sends a prompt and waits until it has failed. */
Lines Fail(Session& Editor)
{
	Lines Seen = Transcript(Editor.Run({ Do("start", "spoil") }));
	const Lines More = Transcript(Editor.Run({ WaitFor("Idle") }));
	Seen.insert(Seen.end(), More.begin(), More.end());
	return Seen;
}

void ExpectAnAnswer(Session& Editor)
{
	Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate"), Do("end", "") });
	EXPECT_EQ(Editor.GetState(), "Idle");
}

TEST(WireFault, InTheAnswerToACommandCancelsWithItsText)
{
	struct
	{
		const char* Fault;
		const char* Text;
	} const Cases[] = {
		{ R"({ "drop": true })", "Request Failed" },
		{ R"({ "cut": 10 })", "Request Failed" },
		{ R"({ "body": "" })", "Request Failed" },
		{ R"({ "code": 500, "body": "" })", "Request Failed" },
		{ R"({ "code": 401, "body": "" })", "Request Failed" },
		{ R"({ "code": 401 })", "Make sure you have a valid API key." },
		{ R"({ "code": 403, "body": "<html>no</html>" })", "Make sure you have a valid API key." },
		{ R"({ "code": 403, "body": { "message": "no" } })", "Make sure you have a valid API key." },
		{ R"({ "code": 500, "body": "<html>broken</html>" })", "Failed to parse initial response" },
		{ R"({ "body": "{\"request_id\": \"a" })", "Failed to parse initial response" },
		{ R"({ "body": [ 1 ] })", "Failed to parse initial response" },
		{ R"({ "body": "\u0000" })", "Failed to parse initial response" },
		{ R"({ "code": 500, "body": { "message": "broken" } })", "Failed to get request ID from response" },
		{ R"({ "body": { "request_id": null } })", "Failed to get request ID from response" },
		{ R"({ "body": { "request_id": { "id": "a" } } })", "Failed to get request ID from response" },
	};
	for (const auto& [Fault, Text] : Cases)
	{
		SCOPED_TRACE(Fault);
		const ServiceProcess Service(Spoiled({ { "command_fault", Json::parse(Fault) } }));
		const Project Toy;
		Toy.Connect(Service);
		Session Editor(Toy);
		EXPECT_EQ(Fail(Editor), Refused(Text));
		EXPECT_EQ(LoggedRequests(Service, "POST").size(), 1u) << "A failed command is not repeated.";
		ExpectAnAnswer(Editor);
	}
}

TEST(WireFault, ACommandThatGetsNoAnswerOnAnOpenConnectionIsNotRepeated)
{
	const ServiceProcess Service(Spoiled({ { "command_fault", { { "drop", true } } } }));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") });
	EXPECT_EQ(Transcript(Editor.Run({ Do("regular", "spoil"), WaitFor("Idle") })),
		(Lines{ "user| [ User ]\n\nspoil\n", Sending, "> RegularRequest", "user| [ Cancelled ]\n\nRequest Failed\n", "> Idle", "> Idle",
			"waited Idle" }));
	EXPECT_EQ(LoggedRequests(Service, "POST").size(), 2u);
}

TEST(WireFault, LeavesAnAcceptedCommandAloneWhateverItsStatusCode)
{
	const ServiceProcess Service(Spoiled({ { "command_fault", { { "code", 500 } } }, { "answer", { "All the same." } } }));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	const Lines Seen = Transcript(Editor.Run({ Do("start", "spoil"), WaitFor("AwaitingApproval") }));
	EXPECT_EQ(std::ranges::count(Seen, "assistant| [ Kestrin ] \n\nAll the same.\n"), 1);
}

TEST(WireFault, WithNoServiceCancels)
{
	const Project Toy;
	{
		const ServiceProcess Service(Says);
		Toy.Connect(Service);
	}
	Session Editor(Toy);
	EXPECT_EQ(Fail(Editor), Refused("Request Failed"));
}

TEST(WireFault, ACertificateThatNobodyTrustsCancels)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service.GetPort());
	Session Editor(Toy);
	EXPECT_EQ(Fail(Editor), Refused("Request Failed"));
	const ServiceProcess Other(Says);
	Toy.Write("Content/Certificates/cacert.pem", ReadText(Other.GetCertificate()));
	Session Again(Toy);
	EXPECT_EQ(Fail(Again), Refused("Request Failed"));
	EXPECT_TRUE(Service.GetLog().empty());
}

TEST(WireFault, AWrongKeyCancelsUntilItIsRight)
{
	const ServiceProcess Service(Says, { "--key", "right" });
	const Project Toy;
	Toy.Connect(Service, "");
	Session Editor(Toy);
	EXPECT_EQ(Fail(Editor), Refused("Make sure you have a valid API key."));
	Editor.Run({ Set("ApiKey", "wrong") });
	EXPECT_EQ(Fail(Editor), Refused("Make sure you have a valid API key."));
	Editor.Run({ Set("ApiKey", "right") });
	ExpectAnAnswer(Editor);
}

TEST(WireFault, InAPollIsPassedOverUntilAFinalStatusComes)
{
	// "spoil" with the faults in a row, each of which must leave the polling alone.
	const ServiceProcess Service(Spoiled(Json::parse(R"({
		"status_faults": [
			{ "drop": true },
			{ "cut": 12 },
			{ "code": 500, "body": "busy" },
			{ "code": 403, "body": { "message": "no" } },
			{ "body": "" },
			{ "body": "<html>" },
			{ "body": [ { "status": "FAILED", "error": "no" } ] },
			{ "body": { "state": "COMPLETED" } },
			{ "body": { "status": null } },
			{ "body": { "status": "ALMOST" } },
			{ "body": { "status": "" } },
			{ "code": 500, "body": { "status": "cOmPleteD", "response": { "response": [ { "type": "TEXT", "text": "Here." } ] } } }
		]
	})")));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy, { "--clock-rate", "60" });
	EXPECT_EQ(Transcript(Editor.Run({ Do("start", "spoil"), WaitFor("AwaitingApproval") })),
		(Lines{ "user| [ User Start ]\n\nspoil\n", Sending, "> InitialRequest", "> PollRequest", Processing, "> PollResponse",
			"assistant| [ Kestrin ] \n\nHere.\n", "> AwaitingApproval", "waited AwaitingApproval" }));
	EXPECT_GE(LoggedRequests(Service, "GET").size(), 12u);
}

TEST(WireFault, AFinalStatusEndsThePollingWithOrWithoutItsField)
{
	struct
	{
		const char* Body;
		/** What comes behind the poll. */
		Lines Seen;
		const char* State;
	} const Cases[] = {
		{ R"({ "status": "failed", "error": "No oil." })", { "user| [ Cancelled ]\n\nRequest failed: No oil.\n", "> Idle", "> Idle" },
			"Idle" },
		{ R"({ "status": "FAILED" })", {}, "PollRequest" },
		{ R"({ "status": "COMPLETED" })", {}, "PollRequest" },
		{ R"({ "status": "COMPLETED", "response": null })", {}, "PollRequest" },
		{ R"({ "status": "COMPLETED", "response": [] })", {}, "PollRequest" },
		{ R"({ "status": "Completed", "response": {} })", { "> PollResponse" }, "PollResponse" },
		{ R"({ "status": "COMPLETED", "response": { "response": "text" } })", { "> PollResponse" }, "PollResponse" },
		{ R"({ "status": "COMPLETED", "response": { "response": [ 7, null, "text", [], {}, { "type": "image" }, { "type": "text" }, { "type": 1, "text": "no" } ] } })",
			{ "> PollResponse", "> AwaitingApproval" }, "AwaitingApproval" },
	};
	for (const auto& [Body, Behind, State] : Cases)
	{
		SCOPED_TRACE(Body);
		const ServiceProcess Service(
			Spoiled({ { "status_faults", Json::array({ { { "body", Json::parse(Body) }, { "times", 1000 } } }) }, { "polls", 2000 } }));
		const Project Toy;
		Toy.Connect(Service);
		Session Editor(Toy, { "--clock-rate", "60" });
		Lines Seen = Transcript(Editor.Run({ Do("start", "spoil"), WaitFor("PollRequest"), { { "do", "tick" }, { "seconds", 15 } } }));
		const auto Poll = std::ranges::find(Seen, Processing);
		ASSERT_NE(Poll, Seen.end());
		EXPECT_EQ(Lines(Poll + 1, Seen.end()), Behind);
		EXPECT_EQ(Editor.GetState(), State);
		EXPECT_EQ(LoggedRequests(Service, "GET").size(), 1u);
		Editor.Run({ Do("end", "") });
		ExpectAnAnswer(Editor);
	}
}

TEST(WireFault, AnAnswerAfterTheEndIsDroppedAndNeverReachesTheNextConversation)
{
	for (const char* Late : { R"({ "command_fault": { "delay": 0.4 } })", R"({ "status_faults": [ { "delay": 0.4, "times": 9 } ] })" })
	{
		for (const char* Way : { "end", "cancel" })
		{
			SCOPED_TRACE(std::string(Late) + Way);
			Json Rule = Json::parse(Late);
			Rule["answer"] = { "Too late." };
			const ServiceProcess Service(Json::array({
				Json{ { "message", "go" }, { "polls", 3 }, { "answer", { "In time." } }, { "auto_continue", true } },
				Rule,
			}));
			const Project Toy;
			Toy.Connect(Service);
			Session Editor(Toy);
			// What is late comes 16 seconds after its request, in the middle of the next conversation.
			Editor.Run({ Do("start", "late"), { { "do", "tick" }, { "seconds", 4 } }, Do(Way, "") });
			const Lines Seen =
				Transcript(Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate"), { { "do", "tick" }, { "seconds", 8 } } }));
			EXPECT_EQ(Seen,
				(Lines{ "user| [ User Start ]\n\ngo\n", Sending, "> InitialRequest", "> PollRequest", Processing, "> PollResponse",
					"assistant| [ Kestrin ] \n\nIn time.\n", "> AwaitingUpdate", "waited AwaitingUpdate" }));
		}
	}
}

TEST(WireFault, AnAnswerThatComesTwiceCountsOnce)
{
	// The first poll's answer is held back until a later poll has brought it, and in the implementer's mode until the next work is polled.
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "go", "status_faults": [ { "delay": 0.5 } ], "answer": [
			"Once.", { "tool": "insert_into_file", "input": { "path": "Source/Toy/Toy.cpp", "insert_line": 0, "new_string": "// On" } } ] },
		{ "polls": 5, "answer": [ "Next." ] }
	])"));
	for (const char* Mode : { "ExplainerMode", "ExplainerAndImplementerMode" })
	{
		const Project Toy;
		Toy.Connect(Service);
		Session Editor(Toy);
		const Lines Seen = Transcript(Editor.Run({ Set("Mode", Mode), Do("start", "go"),
			{ { "do", "wait" }, { "state", { "AwaitingApproval", "AwaitingUpdate" } } }, { { "do", "tick" }, { "seconds", 25 } } }));
		EXPECT_EQ(std::ranges::count(Seen, "assistant| [ Kestrin ] \n\nOnce.\n"), 1) << Mode;
		if (Editor.GetState() == "AwaitingApproval")
		{
			EXPECT_EQ(Editor.Query()["pending_tools"].size(), 1u);
			Editor.Run({ Do("continue", ""), WaitFor("PollRequest") });
		}
		EXPECT_EQ(Toy.Read("Source/Toy/Toy.cpp"), "// On\nint Oil = 3;\n") << Mode;
	}
}

TEST(WireFault, TheServiceMayGoAndComeBackInTheMiddle)
{
	const TemporaryDirectory Files;
	WriteText(Files / "scenario.json", R"({ "rules": [
		{ "message": "go", "polls": 100000 },
		{ "answer": [ "Good." ], "auto_continue": true } ] })");
	const std::vector<std::string> Options = { "--scenario", (Files / "scenario.json").string() };
	auto Service = std::make_unique<ServiceProcess>(Files, Options);
	const int Port = Service->GetPort();
	const Project Toy;
	Toy.Connect(*Service);
	Session Editor(Toy);
	const Json Tick = { { "do", "tick" }, { "seconds", 8 } };
	Editor.Run({ Do("start", "go"), WaitFor("PollRequest"), Tick });
	Service.reset();
	// Polls fail without a word, and the conversation stays.
	EXPECT_EQ(Transcript(Editor.Run({ Tick })), Lines{ Processing });
	EXPECT_EQ(Editor.GetState(), "PollRequest");
	const Lines Seen = Transcript(Editor.Run({ Do("continue", "hear me"), WaitFor("Idle") }));
	EXPECT_EQ(std::ranges::count(Seen, "user| [ Cancelled ]\n\nRequest Failed\n"), 1);

	std::vector<std::string> Again = Options;
	Again.insert(Again.end(), { "--port", std::to_string(Port) });
	Service = std::make_unique<ServiceProcess>(Files, Again);
	Editor.Run({ Do("start", "anew"), WaitFor("AwaitingUpdate") });
	EXPECT_EQ(Editor.GetState(), "AwaitingUpdate");
}

TEST(WireFault, TheEndOfInputEndsWhateverRuns)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "long", "polls": 100000 },
		{ "message": "slow", "command_fault": { "delay": 5 } }
	])"));
	const Project Toy;
	Toy.Connect(Service);
	for (const char* Prompt : { "long", "slow" })
	{
		SCOPED_TRACE(Prompt);
		Session Editor(Toy);
		Editor.Send(Do("start", Prompt));
		Editor.Until("state");
		const auto Before = std::chrono::steady_clock::now();
		Lines Seen = Transcript(Editor.End());
		EXPECT_LT(std::chrono::steady_clock::now() - Before, std::chrono::seconds(3));
		std::erase(Seen, Processing);
		std::erase(Seen, "> PollRequest");
		EXPECT_EQ(Seen, (Lines{ "user| [ Cancelled ]", "> Idle", "> Idle" }));
	}
}
}
