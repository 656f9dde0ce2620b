#include "ServiceProcess.h"

#include <gtest/gtest.h>

namespace
{
TEST(Scenario, TheFirstRuleThatFitsDecides)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "^add (a|the) lamp$", "answer": [ "anchored" ] },
		{ "message": "lamp", "answer": [ "anywhere" ] },
		{ "message": "^$", "results": [], "answer": [ "empty message" ] },
		{ "results": [ { "tool": "Undo", "content": "done\\.$" } ], "answer": [ "undo" ] },
		{ "results": [ { "is_abort": true } ], "answer": [ "abort" ] },
		{ "results": [ { "is_error": true }, { "is_error": false } ], "answer": [ "mixed" ] },
		{ "results": [ { "is_error": true, "content": "^Error:" } ], "answer": [ "error" ] },
		{ "message": "", "answer": [ "any message" ] },
		{ "answer": [ "anything" ] }
	])"));
	struct
	{
		const char* Body;
		const char* Answer;
	} const Cases[] = {
		{ R"({"message":"add the lamp"})", "anchored" },
		{ R"({"message":"please add the lamp"})", "anywhere" },
		{ R"({"message":""})", "empty message" },
		{ R"({"message":"Lamp"})", "any message" },
		{ R"({"message":7})", "anything" },
		{ R"({})", "anything" },
		{ R"({"tool_results":[{"tool_use_id":"Undo","content":"All done."}]})", "undo" },
		{ R"({"tool_results":[{"tool_use_id":"Redo","content":"All done."}]})", "anything" },
		{ R"({"tool_results":[{"tool_use_id":"1","content":"x","is_abort":true}],"message":"stop"})", "abort" },
		{ R"({"tool_results":[{"content":"Error: no","is_error":true}]})", "error" },
		{ R"({"tool_results":[{"content":"no Error:","is_error":true}]})", "anything" },
		{ R"({"tool_results":[{"content":"Error: no","is_error":true},{"content":"fine","is_error":false}]})", "mixed" },
		{ R"({"tool_results":"none"})", "anything" },
		{ R"({"tool_results":[3,null,{"tool_use_id":4}]})", "anything" },
	};
	Talk Mine(Service);
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Mine.AskText(Json::parse(Case.Body)), Case.Answer) << Case.Body;
	}
}

TEST(Scenario, StepsBelongToOneConversation)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "step": "start", "answer": [ "one" ], "next": "second" },
		{ "step": "second", "message": "go", "answer": [ "two" ], "next": "third" },
		{ "step": "second", "answer": [ "stay" ] },
		{ "step": "third", "fail": "over", "next": "start" }
	])"));
	Talk Mine(Service, "mine");
	Talk Other(Service, "other");
	const Json Go{ { "message", "go" } };
	EXPECT_EQ(Mine.AskText(Go), "one");
	EXPECT_EQ(Mine.AskText({ { "message", "wait" } }), "stay");
	EXPECT_EQ(Mine.AskText(Go), "two");
	EXPECT_EQ(Other.AskText(Go), "one");
	EXPECT_EQ(Mine.Poll(Mine.Post(Go)), (Json{ { "status", "FAILED" }, { "error", "over" } }));
	EXPECT_EQ(Mine.AskText(Go), "one");
	EXPECT_EQ(Talk(Service, "").AskText(Go), "one");
}

TEST(Scenario, AnswersHaveTheShapeOfTheProtocol)
{
	const ServiceProcess Service(Json::parse(R"([
		{
			"message": "all",
			"answer": [ "t", { "tool": "finish", "id": "given" }, { "raw": 5 }, { "raw": { "type": "image" } } ],
			"auto_continue": false,
			"messages": [ { "role": "user", "content": "{{message}}" } ]
		},
		{ "message": "none" }
	])"));
	Talk Mine(Service);
	EXPECT_EQ(Mine.Ask({ { "message", "all" } }).dump(),
		R"({"auto_continue":false,"messages":[{"role":"user","content":"all"}],"response":[{"type":"text","text":"t"},)"
		R"({"type":"tool_use","name":"finish","id":"given","input":{}},5,{"type":"image"}]})");
	EXPECT_EQ(Mine.Ask({ { "message", "none" } }).dump(), R"({"response":[]})");
}

TEST(Scenario, ResultsAreKnownByTheToolOfTheirCall)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "read", "answer": [ { "tool": "read_file", "input": { "path": "{{message}}.h" } }, { "tool": "read_file" }, { "tool": "compile" } ] },
		{
			"results": [ { "tool": "read_file" } ],
			"answer": [ "{{result:read_file}}|{{result:compile}}|{{message}}|{{other}}|{{1, 2}}|{{{message}}}|{{" ]
		},
		{ "results": [ { "tool": "compile" } ], "answer": [ "compiled" ] }
	])"));
	Talk Mine(Service);
	const Json Calls = Mine.Ask({ { "message", "read" } })["response"];
	ASSERT_EQ(Calls.size(), 3u);
	EXPECT_EQ(Calls[0]["input"]["path"], "read.h");
	EXPECT_NE(Calls[0]["id"], Calls[1]["id"]);
	EXPECT_EQ(Calls[2]["id"].get<std::string>().size(), 36u);

	EXPECT_EQ(Mine.AskText(ResultBody(Calls[2]["id"], "ok")), "compiled");
	Json Both = ResultBody(Calls[0]["id"], "first");
	Both["tool_results"].push_back(ResultBody(Calls[1]["id"], "second {{message}}")["tool_results"][0]);
	Both["message"] = "M";
	EXPECT_EQ(Mine.AskText(Both), "second {{message}}||M|{{other}}|{{1, 2}}|{M}|{{");
}

TEST(Scenario, HugeTextsAreMatchedWhole)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "^(a|b)*needle", "answer": [ "found" ] },
		{ "message": "^(.|\\n)*$", "answer": [ "passed" ] }
	])"));
	Talk Mine(Service);
	EXPECT_EQ(Mine.AskText({ { "message", std::string(10'000'000, 'a') + "needle" } }), "found");
	EXPECT_EQ(Mine.AskText({ { "message", std::string(10'000'000, 'a') + "straw" } }), "passed");
}

TEST(Scenario, ErrorsNameTheRuleAndTheField)
{
	struct
	{
		const char* Text;
		const char* Message;
	} const Cases[] = {
		{ "", "cannot be read, or is empty" },
		{ "{\n\"rules\": [\n{]}", "line 3, column 2" },
		{ "[]", "expected an object" },
		{ "{}", "field \"rules\": expected at least one rule" },
		{ R"({"rules":{}})", "field \"rules\": expected an array" },
		{ R"({"rules":[{},5]})", "rule 2: expected an object" },
		{ R"({"rules":[{"name":"n","mesage":""}]})", "rule 1 (\"n\"), field \"mesage\": unknown field" },
		{ R"({"rules":[{"message":"(a"}]})", "rule 1, field \"message\": no regular expression" },
		{ R"({"rules":[{"step":5}]})", "field \"step\": expected a string" },
		{ R"({"rules":[{"results":[{},{"is_error":"no"}]}]})", "field \"results\", element 2, field \"is_error\": expected true or false" },
		{ R"({"rules":[{"answer":[{"input":{}}]}]})", "field \"answer\", element 1: expected a text, or an object with" },
		{ R"({"rules":[{"answer":[],"fail":"x"}]})", "field \"fail\": a rule has an answer or fails" },
		{ R"({"rules":[{"takes":-0.5}]})", "field \"takes\": expected a number of seconds" },
		{ R"({"rules":[{"polls":1.5}]})", "field \"polls\": expected a whole number" },
		{ R"({"rules":[{"command_fault":{"code":99}}]})", "field \"command_fault\", field \"code\": expected an HTTP status" },
		{ R"({"rules":[{"command_fault":{"times":2}}]})", "field \"times\": unknown field" },
		{ R"({"rules":[{"status_faults":{"drop":true}}]})", "field \"status_faults\": expected an array" },
	};
	const TemporaryDirectory Files;
	const std::string Path = (Files / "s.json").string();
	for (const auto& Case : Cases)
	{
		WriteText(Path, Case.Text);
		const Ending Result = RunToEnd({ "--port", "0", "--scenario", Path });
		EXPECT_EQ(Result.Code, 2) << Case.Text;
		EXPECT_EQ(Result.Out, "") << Case.Text;
		EXPECT_NE(Result.Error.find(Path), std::string::npos) << Result.Error;
		EXPECT_NE(Result.Error.find(Case.Message), std::string::npos) << Result.Error;
	}
}
}
