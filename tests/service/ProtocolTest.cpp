#include "ServiceProcess.h"

#include <regex>
#include <set>
#include <thread>

#include <gtest/gtest.h>

namespace
{
const Json AnswerAnything = Json::array({ { { "answer", { "Yes." } } } });
const char* const JsonType = "application/json";

TEST(Protocol, OnlyClientsThatTrustTheCertificateGetThrough)
{
	const ServiceProcess Service(AnswerAnything);
	for (const char* Host : { "127.0.0.1", "localhost" })
	{
		EXPECT_TRUE(Service.Connect(Host)->Post("/command", "{}", JsonType)) << Host;
	}
	httplib::SSLClient Stranger("127.0.0.1", Service.GetPort());
	const auto Answer = Stranger.Post("/command", "{}", JsonType);
	ASSERT_FALSE(Answer);
	EXPECT_EQ(Answer.error(), httplib::Error::SSLServerVerification);
	EXPECT_EQ(Service.GetLog().size(), 2u);
}

TEST(Protocol, RefusesWhatItDoesNotKnow)
{
	const ServiceProcess Service(AnswerAnything, { "--key", "right" });
	const httplib::Headers Right{ { "x-api-key", "right" } };
	const httplib::Headers Wrong{ { "x-api-key", "RIGHT" } };
	struct
	{
		const char* Name;
		const char* Path;
		const char* Body; // null: a GET
		const httplib::Headers& Headers;
		int Status;
	} const Cases[] = {
		{ "right key", "/prod/command", "{}", Right, 200 },
		{ "other base path", "/a/b/command", "{}", Right, 200 },
		{ "no base path", "/command", "{}", Right, 200 },
		{ "wrong key", "/prod/command", "{}", Wrong, 401 },
		{ "no key", "/prod/command", "{}", {}, 401 },
		{ "wrong key of a poll", "/prod/status?request_id=1", nullptr, Wrong, 401 },
		{ "unknown id", "/prod/status?request_id=1", nullptr, Right, 404 },
		{ "no id", "/prod/status", nullptr, Right, 404 },
		{ "unknown path", "/prod/commands", "{}", Right, 404 },
		{ "no JSON", "/prod/command", "{\"message\":", Right, 400 },
		{ "empty body", "/prod/command", "", Right, 400 },
		{ "no object", "/prod/command", "[]", Right, 400 },
		{ "no UTF-8", "/prod/command", "{\"message\":\"\xff\"}", Right, 400 },
	};
	const std::string Deep = "{\"a\":" + std::string(200'000, '[') + std::string(200'000, ']') + "}";
	auto Client = Service.Connect();
	const auto Refused = Client->Post("/prod/command", Right, Deep, JsonType);
	ASSERT_TRUE(Refused);
	EXPECT_EQ(Refused->status, 400);
	for (const auto& Case : Cases)
	{
		const auto Answer = Case.Body ? Client->Post(Case.Path, Case.Headers, Case.Body, JsonType) : Client->Get(Case.Path, Case.Headers);
		ASSERT_TRUE(Answer) << Case.Name;
		EXPECT_EQ(Answer->status, Case.Status) << Case.Name;
		EXPECT_TRUE(Json::parse(Answer->body).is_object()) << Case.Name;
	}
}

TEST(Protocol, EveryCommandGetsItsOwnIdAlsoFromManyThreads)
{
	const ServiceProcess Service(AnswerAnything);
	constexpr size_t Clients = 8;
	constexpr size_t Commands = 25;
	std::vector<std::vector<std::string>> Given(Clients);
	std::vector<std::thread> Threads;
	for (size_t Client = 0; Client < Clients; ++Client)
	{
		Threads.emplace_back(
			[&Service, Client, &Ids = Given[Client]]
			{
			Talk Mine(Service, "talk " + std::to_string(Client));
			for (size_t Command = 0; Command < Commands; ++Command)
			{
				Ids.push_back(Mine.Post({ { "message", "x" } }));
			}
		});
	}
	std::set<std::string> All;
	const std::regex Form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
	for (size_t Client = 0; Client < Clients; ++Client)
	{
		Threads[Client].join();
		for (const std::string& Id : Given[Client])
		{
			EXPECT_TRUE(std::regex_match(Id, Form)) << Id;
			All.insert(Id);
		}
	}
	EXPECT_EQ(All.size(), Clients * Commands);
	EXPECT_EQ(Service.GetLog().size(), Clients * Commands);
}

TEST(Protocol, WorkTakesItsPollsAndItsTime)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "polls", "answer": [ "slow" ], "polls": 2 },
		{ "message": "takes", "answer": [ "late" ], "takes": 0.4 },
		{ "message": "fails", "fail": "out of ink", "polls": 1 }
	])"));
	Talk Mine(Service);
	const auto Statuses = [&](const char* Message, int Polls)
	{
		const std::string Id = Mine.Post({ { "message", Message } });
		std::string Seen;
		for (int Poll = 0; Poll < Polls; ++Poll)
		{
			Seen += Mine.Poll(Id).value("status", "?").substr(0, 1);
		}
		return Seen;
	};
	EXPECT_EQ(Statuses("polls", 4), "PPCC");
	EXPECT_EQ(Statuses("fails", 3), "PFF");
	EXPECT_EQ(Statuses("takes", 1), "P");

	const auto Start = std::chrono::steady_clock::now();
	const std::string Id = Mine.Post({ { "message", "takes" } });
	while (Mine.Poll(Id)["status"] == "PROCESSING")
	{
		std::this_thread::sleep_for(std::chrono::milliseconds(10));
	}
	EXPECT_GE(std::chrono::steady_clock::now() - Start, std::chrono::milliseconds(400));
	EXPECT_EQ(Mine.Poll(Mine.Post({ { "message", "other" } }))["status"], "FAILED");
	EXPECT_EQ(Mine.Poll(Mine.Poll("nobody").dump()), (Json{ { "message", "Unknown request_id" } }));
}

TEST(Protocol, TheLogShowsRequestsAsTheyCameOverTheWire)
{
	const ServiceProcess Service(AnswerAnything);
	const std::string Body = R"({"b":1,"a":[2]})";
	Service.Exchange(
		"POST /prod/command?x=1&y=%20 HTTP/1.1\r\nzeta: 1\r\nHost: h\r\nAlpha:2 \r\nx-api-key:\r\nzeta: 3\r\nAccept-Encoding: gzip\r\n"
		"Connection: close\r\nContent-Length: " +
		std::to_string(Body.size()) + "\r\n\r\n" + Body);
	Service.Exchange("POST /command HTTP/1.1\r\nContent-Length: 3\r\nConnection: close\r\n\r\nno\xff");
	const std::vector<Json> Log = Service.GetLog();
	ASSERT_EQ(Log.size(), 2u);
	const Json& First = Log[0];
	EXPECT_EQ(First["method"], "POST");
	EXPECT_EQ(First["path"], "/prod/command");
	EXPECT_EQ(First["query"], "x=1&y=%20");
	EXPECT_EQ(First["headers"].dump(),
		R"([["zeta","1"],["Host","h"],["Alpha","2"],["x-api-key",""],["zeta","3"],["Accept-Encoding","gzip"],["Connection","close"],["Content-Length","15"]])");
	EXPECT_EQ(First["body"].dump(), Body);
	EXPECT_EQ(First["status"], 200);
	EXPECT_TRUE(First["answer"]["request_id"].is_string()) << First;
	EXPECT_EQ(Log[1]["raw_body"], "no\xEF\xBF\xBD");
	EXPECT_EQ(Log[1]["status"], 400);
	EXPECT_GE(Log[1]["time"].get<double>(), First["time"].get<double>());
}
}
