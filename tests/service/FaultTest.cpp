#include "ServiceProcess.h"

#include <future>

#include <gtest/gtest.h>

namespace
{
using namespace std::chrono_literals;
using httplib::Error;

/** What a fault makes of the answer to a command, as a client sees it. */
TEST(Fault, SpoilsTheAnswerToTheCommand)
{
	struct
	{
		const char* Fault;
		int Status; // 0: no answer
		const char* Body;
	} const Cases[] = {
		{ R"({"code":500})", 500, nullptr },
		{ R"({"code":403,"body":{"message":"no"}})", 403, R"({"message":"no"})" },
		{ R"({"body":"<html>"})", 200, "<html>" },
		{ R"({"body":""})", 200, "" },
		{ R"({"body":[1]})", 200, "[1]" },
		{ R"({"code":500,"body":""})", 500, "" },
		{ R"({"drop":true})", 0, nullptr },
		{ R"({"cut":5})", 0, nullptr },
		{ R"({"cut":0})", 0, nullptr },
		{ R"({"cut":9999})", 200, nullptr },
	};
	for (const auto& Case : Cases)
	{
		const ServiceProcess Service(Json::array({ { { "command_fault", Json::parse(Case.Fault) } } }));
		const auto Answer = Service.Connect()->Post("/command", "{}", "application/json");
		EXPECT_EQ(Answer ? Answer->status : 0, Case.Status) << Case.Fault;
		if (Answer && Case.Body)
		{
			EXPECT_EQ(Answer->body, Case.Body) << Case.Fault;
		}
		else if (Answer)
		{
			EXPECT_TRUE(Json::parse(Answer->body).contains("request_id")) << Case.Fault;
		}
	}
}

TEST(Fault, ACutAnswerEndsInTheMiddleOfItsBody)
{
	const ServiceProcess Service(Json::array({ { { "command_fault", { { "cut", 7 } } } } }));
	const std::string Answer = Service.Exchange("POST /command HTTP/1.1\r\nContent-Length: 2\r\n\r\n{}");
	EXPECT_NE(Answer.find("Content-Length: 53\r\n"), std::string::npos) << Answer;
	EXPECT_TRUE(Answer.ends_with("\r\n\r\n{\"reque")) << Answer;
}

TEST(Fault, SpoilsPollsInTurnAndLetsTheWorkGoOn)
{
	const ServiceProcess Service(Json::parse(R"([
		{
			"answer": [ "at last" ],
			"polls": 4,
			"status_faults": [
				{ "body": { "status": "completed" } },
				{ "drop": true, "times": 2 },
				{ "code": 503, "body": "busy" },
				{ "code": 500 }
			]
		}
	])"));
	Talk Mine(Service);
	const std::string Path = "/status?request_id=" + Mine.Post({ { "message", "x" } });
	// A connection for each poll: a client that keeps one may repeat a dropped request by itself.
	const auto Poll = [&] { return Service.Connect()->Get(Path); };
	EXPECT_EQ(Poll()->body, R"({"status":"completed"})");
	EXPECT_FALSE(Poll());
	EXPECT_FALSE(Poll());
	const auto Busy = Poll();
	EXPECT_EQ(Busy->status, 503);
	EXPECT_EQ(Busy->body, "busy");
	const auto Done = Poll();
	EXPECT_EQ(Done->status, 500);
	EXPECT_EQ(Json::parse(Done->body)["status"], "COMPLETED");
	EXPECT_EQ(Poll()->status, 200);

	std::vector<int> Logged;
	for (const Json& Line : Service.GetLog())
	{
		Logged.push_back(Line["status"].get<int>());
		EXPECT_EQ(Line.contains("answer") || Line.contains("raw_answer"), Logged.back() != 0) << Line;
	}
	EXPECT_EQ(Logged, (std::vector<int>{ 200, 200, 0, 0, 503, 500, 200 }));
}

TEST(Fault, ADelayedAnswerHoldsUpNobodyElse)
{
	const ServiceProcess Service(Json::parse(R"([ { "message": "late", "command_fault": { "delay": 0.6 } }, { "answer": [ "now" ] } ])"));
	auto Late = std::async(std::launch::async,
		[&]
		{
		const auto Start = std::chrono::steady_clock::now();
		Talk(Service, "late").Post({ { "message", "late" } });
		return std::chrono::steady_clock::now() - Start;
	});
	Talk Mine(Service, "mine");
	EXPECT_EQ(Mine.AskText({ { "message", "x" } }), "now");
	EXPECT_EQ(Late.wait_for(0s), std::future_status::timeout);
	EXPECT_GE(Late.get(), 600ms);
}
}
