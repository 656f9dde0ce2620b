#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** What goes over the wire, as the service's log has it. */
namespace
{
using Header = std::pair<std::string, std::string>;
using Headers = std::vector<Header>;

const Json Says = Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])");

Headers HeadersOf(const Json& Request)
{
	return Request.value("headers", Headers());
}

/** Those that belong to the transfer and not to the protocol may stand around the others, and no more. */
Headers WithoutTransferHeaders(Headers All)
{
	std::erase_if(All,
		[](const Header& In)
		{
		static const std::vector<std::string> Transfer = { "Host", "Accept", "Content-Length", "User-Agent", "Accept-Encoding",
			"Connection" };
		return std::ranges::find(Transfer, In.first) != Transfer.end();
	});
	return All;
}

std::string ValueOf(const Json& Request, const std::string& Name)
{
	const Headers All = HeadersOf(Request);
	const auto Found = std::ranges::find(All, Name, &Header::first);
	return Found == All.end() ? "(none)" : Found->second;
}

TEST(Request, CarriesItsHeadersInOrder)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service, "a key");
	Session Editor(Toy);
	Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") });
	const std::string Id = Editor.Query()["conversation_id"];
	Editor.Run({ Do("regular", "on"), WaitFor("PollRequest"), WaitFor("AwaitingUpdate") });

	const auto Posts = LoggedRequests(Service, "POST");
	ASSERT_EQ(Posts.size(), 2u);
	for (const Json& Post : Posts)
	{
		EXPECT_EQ(WithoutTransferHeaders(HeadersOf(Post)),
			(Headers{ { "Content-Type", "application/json" }, { "x-api-key", "a key" }, { "conversation-id", Id },
				{ "engine", "++UE5+Release-5.5" }, { "engine-version", "5.5" } }));
		EXPECT_EQ(Post["path"], "/prod/command");
		EXPECT_EQ(Post["query"], "");
	}
	// The body of a further prompt is laid down to the blank.
	EXPECT_EQ(ValueOf(Posts[1], "Content-Length"), std::to_string(std::string(R"({"message": "on"})").size()));

	const auto Polls = LoggedRequests(Service, "GET");
	ASSERT_GE(Polls.size(), 2u);
	std::vector<std::string> Asked;
	for (const Json& Poll : Polls)
	{
		EXPECT_EQ(WithoutTransferHeaders(HeadersOf(Poll)), (Headers{ { "x-api-key", "a key" }, { "conversation-id", Id } }));
		EXPECT_EQ(Poll["path"], "/prod/status");
		Asked.push_back(Poll["query"]);
	}
	EXPECT_EQ(Asked.front(), "request_id=" + Posts[0]["answer"]["request_id"].get<std::string>());
	EXPECT_EQ(Asked.back(), "request_id=" + Posts[1]["answer"]["request_id"].get<std::string>());
}

TEST(Request, SendsEmptyHeadersToo)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service, "");
	Session Editor(Toy);
	Editor.Run({ Do("continue", "on"), WaitFor("AwaitingUpdate") });
	for (const Json& Request : Service.GetLog())
	{
		EXPECT_EQ(ValueOf(Request, "x-api-key"), "") << Request;
		EXPECT_EQ(ValueOf(Request, "conversation-id"), "") << Request;
	}
}

TEST(Request, TakesTheKeyOfTheSettingsWhereTheStageHasNone)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service, "");
	Session Editor(Toy);
	Editor.Run({ Set("ApiKey", "first"), Do("start", "go"), WaitFor("AwaitingUpdate"), Set("ApiKey", "second"), Do("regular", "on"),
		WaitFor("PollRequest"), WaitFor("AwaitingUpdate") });
	const auto Posts = LoggedRequests(Service, "POST");
	ASSERT_EQ(Posts.size(), 2u);
	EXPECT_EQ(ValueOf(Posts[0], "x-api-key"), "first");
	EXPECT_EQ(ValueOf(Posts[1], "x-api-key"), "second");
}

TEST(Request, ShowsTheProjectsTreeWithTheFirstPrompt)
{
	const ServiceProcess Service(Says);
	const Project Toy("Build/Toy");
	Toy.Connect(Service);
	for (const char* Path : { "Source/Toy/Toy.h", "Source/Toy/Private/Deep.cpp", "Source/notes.txt", "Saved/Log.json", "binaries/Toy.json",
			 "Content/Maps/Hollow.umap", "Content/Lantern.UASSET", "Content/__ExternalActors__/A.uasset", "Intermediate/Build/B.h",
			 ".git/config.ini", "Empty/Build/only.h", "Source/Toy/L\u00e4mpchen.cpp" })
	{
		Toy.Write(Path, "x");
	}
	Session Editor(Toy);
	Editor.Run({ Do("start", "caf\u00e9 \"\\\" \n\t\u0001 \U0001F41D"), WaitFor("AwaitingUpdate") });
	const auto Posts = LoggedRequests(Service, "POST");
	ASSERT_EQ(Posts.size(), 1u);
	EXPECT_EQ(Posts[0]["body"].dump(),
		Json::parse(R"({
			"message": "caf\u00e9 \"\\\" \n\t\u0001 \ud83d\udc1d",
			"file_structure": {
				"Toy.uproject": "#",
				"Config": { "DefaultPlugin.ini": "#" },
				"Content": { "Lantern.UASSET": "#", "Maps": { "Hollow.umap": "#" } },
				"Source": { "Toy": {
					"L\u00e4mpchen.cpp": "#", "Toy.cpp": "#", "Toy.h": "#", "Private": { "Deep.cpp": "#" } } }
			},
			"is_confirmation_mode": true
		})")
			.dump());
}

TEST(Request, CarriesALargePrompt)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	const std::string Large(3 << 20, 'x');
	Editor.Run({ Do("start", Large), WaitFor("AwaitingUpdate") });
	const auto Posts = LoggedRequests(Service, "POST");
	ASSERT_EQ(Posts.size(), 1u);
	EXPECT_EQ(Posts[0]["body"]["message"], Large);
}

/** Seconds of the platform's clock between the requests from `First` on. */
std::vector<double> WaitsBetween(const std::vector<Json>& Log, int Rate)
{
	std::vector<double> Waits;
	for (size_t Index = 1; Index < Log.size(); ++Index)
	{
		Waits.push_back((Log[Index]["time"].get<double>() - Log[Index - 1]["time"].get<double>()) * Rate);
	}
	return Waits;
}

void ExpectWaits(const std::vector<double>& Waits, const std::vector<double>& Nominal, int Rate)
{
	// A request can reach the service late by this; a wait that begins with such a one looks shorter.
	const double Jitter = 0.03 * Rate;
	ASSERT_EQ(Waits.size(), Nominal.size()) << ::testing::PrintToString(Waits);
	for (size_t Index = 0; Index < Nominal.size(); ++Index)
	{
		EXPECT_GE(Waits[Index], Nominal[Index] * 0.98 - (Index == 0 ? 0 : Jitter)) << Index << ": " << ::testing::PrintToString(Waits);
		EXPECT_LE(Waits[Index], Nominal[Index] + 0.1 + 2 * Jitter) << Index << ": " << ::testing::PrintToString(Waits);
	}
}

TEST(Polling, BacksOffToTenSecondsAndStartsAnewWithEachCommand)
{
	constexpr int Rate = 10;
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "go", "polls": 5, "answer": [ "Good." ], "auto_continue": true },
		{ "message": "on", "polls": 2, "answer": [ "Good." ], "auto_continue": true }
	])"));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy, { "--clock-rate", std::to_string(Rate) });
	const auto Polled = [&](const Json& Command)
	{
		const auto Events = Editor.Run({ Command, WaitFor("PollRequest"), WaitFor("AwaitingUpdate") });
		return std::ranges::count_if(Events, [](const Json& Event) { return Event.value("text", "") == "Processing request..."; });
	};
	EXPECT_EQ(Polled(Do("start", "go")), 6);
	const size_t First = Service.GetLog().size();
	ExpectWaits(WaitsBetween(Service.GetLog(), Rate), { 2.0, 3.0, 4.5, 6.75, 10.0, 10.0 }, Rate);

	EXPECT_EQ(Polled(Do("regular", "on")), 3);
	std::vector<Json> Log = Service.GetLog();
	Log.erase(Log.begin(), Log.begin() + static_cast<long>(First));
	ExpectWaits(WaitsBetween(Log, Rate), { 2.0, 3.0, 4.5 }, Rate);
}

TEST(Polling, AsksForTheOldWorkUntilANewCommandIsAccepted)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "long", "polls": 100000 },
		{ "message": "slow", "command_fault": { "delay": 0.5 }, "polls": 1, "answer": [ "Good." ], "auto_continue": true }
	])"));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	Editor.Run({ Do("start", "long"), WaitFor("PollRequest"), Do("continue", "slow"), WaitFor("PollRequest"), WaitFor("AwaitingUpdate") });

	const std::vector<Json> Log = Service.GetLog();
	const auto Second = std::find_if(Log.begin() + 1, Log.end(), [](const Json& Request) { return Request["method"] == "POST"; });
	ASSERT_NE(Second, Log.end());
	const std::string Old = "request_id=" + Log.front()["answer"]["request_id"].get<std::string>();
	const std::string New = "request_id=" + (*Second)["answer"]["request_id"].get<std::string>();
	std::vector<std::string> Asked;
	std::ranges::transform(LoggedRequests(Service, "GET"), std::back_inserter(Asked), [](const Json& Poll) { return Poll["query"]; });
	const auto FirstNew = std::ranges::find(Asked, New);
	// At once and then with growing waits: 0, 3, 7.5 and 14.25 seconds fit into the 20 that the acceptance takes.
	EXPECT_GE(FirstNew - Asked.begin(), 3);
	EXPECT_TRUE(std::all_of(Asked.begin(), FirstNew, [&](const std::string& Query) { return Query == Old; }));
	EXPECT_TRUE(std::all_of(FirstNew, Asked.end(), [&](const std::string& Query) { return Query == New; }));
	EXPECT_GE(Asked.end() - FirstNew, 2);
}
}
