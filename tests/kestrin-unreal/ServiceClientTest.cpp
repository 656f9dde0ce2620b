#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "HAL/PlatformTime.h"
#include "KestrinSettings.h"
#include "Support/Conversation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{
FKestrinInterface& Interface()
{
	return FKestrinInterface::Get();
}

using FHeader = TPair<FString, FString>;

TEST(ServiceClient, TheFirstRequestCarriesThePromptAndTheTree)
{
	FConversation Talk;
	Talk.Project.Write("Source/Game/Game.cpp", "");
	Talk.Project.Write("Saved/skip.cpp", "");
	GetMutableDefault<UKestrinSettings>()->ApiKey = TEXT("key");
	Interface().InitialRequest(TEXT("Say \"hi\"\n"));
	const FScriptedRequest& Request = Talk.LastRequest();
	EXPECT_EQ(ToUtf8(Request.Verb), "POST");
	EXPECT_EQ(ToUtf8(Request.Url), "https://api.kestrin.example/prod/command");
	EXPECT_EQ(Request.Headers,
		(TArray<FHeader>{ { TEXT("Content-Type"), TEXT("application/json") }, { TEXT("x-api-key"), TEXT("key") },
			{ TEXT("conversation-id"), FAgent::Get().GetConversationId() }, { TEXT("engine"), TEXT("++UE5+Release-5.5") },
			{ TEXT("engine-version"), TEXT("5.5") } }));
	EXPECT_EQ(Talk.LastBody(),
		R"({"message":"Say \"hi\"\n","file_structure":{"Game.uproject":"#","Source":{"Game":{"Game.cpp":"#"}}},"is_confirmation_mode":true})");
}

TEST(ServiceClient, TheModeDecidesTheConfirmation)
{
	FConversation Talk;
	GetMutableDefault<UKestrinSettings>()->Mode = EKestrinMode::ExplainerAndImplementerMode;
	Interface().InitialRequest(TEXT("x"));
	EXPECT_THAT(Talk.LastBody(), HasSubstr(R"("is_confirmation_mode":false})"));
}

TEST(ServiceClient, FurtherPromptsCarryTheResultsThatWait)
{
	FConversation Talk;
	Talk.StartAndFinishWith("", true);
	Interface().RegularRequest(TEXT("a \"b\"\n\\"));
	EXPECT_EQ(Talk.LastBody(), R"({"message": "a \"b\"\n\\"})");

	Talk.FinishWith("", true);
	FAgent::Get().AddToolResult(MakeShared<FJsonValueString>(TEXT("late")));
	Interface().RegularRequest(TEXT("c"));
	EXPECT_EQ(Talk.LastBody(), R"({"tool_results": ["late"], "message": "c"})");
	EXPECT_TRUE(FAgent::Get().GetToolResults().IsEmpty());
}

TEST(ServiceClient, PollsWithTwoHeadersAfterTheGivenWaits)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Accept("id-7");
	double Last = FPlatformTime::Seconds();
	for (const double Wait : { 2.0, 3.0, 4.5, 6.75, 10.0, 10.0 })
	{
		Talk.WaitForPoll();
		const double Now = FPlatformTime::Seconds();
		EXPECT_GE(Now - Last, Wait - 1e-3);
		EXPECT_LE(Now - Last, Wait + 0.11);
		Last = Now;
	}
	const FScriptedRequest& Poll = Talk.LastRequest();
	EXPECT_EQ(ToUtf8(Poll.Verb), "GET");
	EXPECT_EQ(ToUtf8(Poll.Url), "https://api.kestrin.example/prod/status?request_id=id-7");
	EXPECT_EQ(
		Poll.Headers, (TArray<FHeader>{ { TEXT("x-api-key"), TEXT("") }, { TEXT("conversation-id"), FAgent::Get().GetConversationId() } }));
}

TEST(ServiceClient, ANewCommandStartsTheWaitsAnew)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Accept();
	for (int Poll = 0; Poll < 4; ++Poll)
	{
		Talk.WaitForPoll();
	}
	Talk.Answer(200, R"({"status":"COMPLETED","response":{"response":[]}})");
	Interface().Continue(TEXT("y"));
	Talk.Accept("r2");
	const double Accepted = FPlatformTime::Seconds();
	Talk.WaitForPoll();
	EXPECT_NEAR(FPlatformTime::Seconds() - Accepted, 2.0, 0.11);
}

TEST(ServiceClient, RefusedCommandsCancelWithTheirText)
{
	struct FCase
	{
		int32 Code;
		const char* Body;
		const char* Reason;
	};
	const FCase Cases[] = {
		{ 200, "", "Request Failed" },
		{ 401, R"({"request_id":"r"})", "Make sure you have a valid API key." },
		{ 403, "no", "Make sure you have a valid API key." },
		{ 401, "", "Request Failed" },
		{ 500, "<html>", "Failed to parse initial response" },
		{ 200, R"({"request_id":)", "Failed to parse initial response" },
		{ 200, R"(["request_id"])", "Failed to parse initial response" },
		{ 500, R"({"message":"Internal"})", "Failed to get request ID from response" },
		{ 200, R"({"request_id":null})", "Failed to get request ID from response" },
		{ 200, R"({"request_id":["r"]})", "Failed to get request ID from response" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Body);
		FConversation Talk;
		Interface().InitialRequest(TEXT("x"));
		Talk.Forget();
		Talk.Answer(Case.Code, Case.Body);
		EXPECT_THAT(Talk.Chat, ElementsAre("user| [ Cancelled ]\n\n" + std::string(Case.Reason) + "\n"));
		EXPECT_EQ(Talk.State(), "Idle");
	}
}

TEST(ServiceClient, AFailedTransferCancels)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Forget();
	Talk.Wire.Fail(Talk.LastRequest().Id);
	FMainLoop::Tick();
	EXPECT_THAT(Talk.Chat, ElementsAre("user| [ Cancelled ]\n\nRequest Failed\n"));
}

TEST(ServiceClient, AnErrorCodeWithARequestIdIsAccepted)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Answer(500, R"({"request_id":"r"})");
	EXPECT_EQ(Talk.State(), "PollRequest");
}

TEST(ServiceClient, PollAnswersThatSayNothingAreWaitedOut)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Accept();
	for (const char* Body : { "", "<html>", "{", "[]", R"({"state":"COMPLETED"})", R"({"status":null})", R"({"status":"RUNNING"})",
			 R"({"status":"COMPLETED?"})" })
	{
		SCOPED_TRACE(Body);
		Talk.WaitForPoll();
		Talk.Answer(500, Body);
		EXPECT_EQ(Talk.State(), "PollRequest");
	}
	Talk.WaitForPoll();
	Talk.Wire.Fail(Talk.LastRequest().Id);
	FMainLoop::Tick();
	const int32 Polls = Talk.CountRequests(TEXT("GET"));
	Talk.WaitForPoll();
	EXPECT_EQ(Talk.CountRequests(TEXT("GET")), Polls + 1);
}

TEST(ServiceClient, FinalStatusesEndThePolling)
{
	struct FCase
	{
		const char* Body;
		const char* State;
		const char* LastLine;
	};
	const FCase Cases[] = {
		{ R"({"status":"COMPLETED","response":{"response":[]}})", "AwaitingApproval", nullptr },
		{ R"({"status":"completed","response":{"response":[]}})", "AwaitingApproval", nullptr },
		{ R"({"status":"Failed","error":"Overloaded"})", "Idle", "user| [ Cancelled ]\n\nRequest failed: Overloaded\n" },
		// Without their field nothing further happens: the user ends the request.
		{ R"({"status":"COMPLETED"})", "PollRequest", nullptr },
		{ R"({"status":"COMPLETED","response":"text"})", "PollRequest", nullptr },
		{ R"({"status":"FAILED"})", "PollRequest", nullptr },
		{ R"({"status":"COMPLETED","response":{}})", "PollResponse", nullptr },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Body);
		FConversation Talk;
		Interface().InitialRequest(TEXT("x"));
		Talk.Accept();
		Talk.WaitForPoll();
		Talk.Forget();
		Talk.Answer(200, Case.Body);
		EXPECT_EQ(Talk.State(), Case.State);
		if (Case.LastLine)
		{
			EXPECT_THAT(Talk.Chat, ElementsAre(Case.LastLine));
		}
		const int32 Requests = Talk.Wire.GetRequests().Num();
		FMainLoop::RunFor(30.0);
		EXPECT_EQ(Talk.Wire.GetRequests().Num(), Requests);
	}
}

const char* const Completed = R"({"status":"COMPLETED","response":{"response":[{"type":"text","text":"Late"}]}})";

TEST(ServiceClient, ALateAnswerToACommandIsDropped)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("First"));
	const int32 Late = Talk.LastRequest().Id;
	Interface().EndRequest(FString());
	EXPECT_TRUE(Talk.LastRequest().bCancelled);
	Talk.Forget();
	Talk.Wire.Answer(Late, 200, R"({"request_id":"old"})");
	FMainLoop::Tick();
	EXPECT_EQ(Talk.State(), "Idle");

	Interface().InitialRequest(TEXT("Second"));
	Talk.Wire.Answer(Late, 401, "");
	FMainLoop::Tick();
	EXPECT_EQ(Talk.State(), "InitialRequest");
	Talk.Accept("new");
	Talk.WaitForPoll();
	EXPECT_THAT(ToUtf8(Talk.LastRequest().Url), HasSubstr("request_id=new"));
	EXPECT_THAT(
		Talk.Chat, ElementsAre("user| [ User Start ]\n\nSecond\n", "progress|Sending request...", "progress|Processing request..."));
}

TEST(ServiceClient, ALatePollAnswerNeverReachesTheNextRequest)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("First"));
	Talk.Accept("old");
	Talk.WaitForPoll();
	const int32 Late = Talk.LastRequest().Id;
	Interface().EndRequest(FString());
	Interface().InitialRequest(TEXT("Second"));
	Talk.Accept("new");
	Talk.Forget();
	Talk.Wire.Answer(Late, 200, Completed);
	FMainLoop::Tick();
	EXPECT_EQ(Talk.State(), "PollRequest");
	EXPECT_TRUE(Talk.Chat.empty());
}

TEST(ServiceClient, OfTwoPollsInFlightOneAnswerCounts)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Accept();
	Talk.WaitForPoll();
	const int32 First = Talk.LastRequest().Id;
	Talk.WaitForPoll();
	Talk.Answer(200, Completed);
	Talk.Forget();
	Talk.Wire.Answer(First, 200, Completed);
	FMainLoop::Tick();
	EXPECT_EQ(Talk.State(), "AwaitingApproval");
	EXPECT_TRUE(Talk.Chat.empty());
}

TEST(ServiceClient, AnAnswerForTheOldIdBeforeTheNewCommandIsAcceptedCounts)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("x"));
	Talk.Accept("old");
	Talk.WaitForPoll();
	const int32 Poll = Talk.LastRequest().Id;
	Interface().Continue(TEXT("More"));
	Talk.Wire.Answer(Poll, 200, Completed);
	FMainLoop::Tick();
	EXPECT_EQ(Talk.State(), "AwaitingApproval");
}
}
