#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
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

const char* const TextBlock = R"({"type":"text","text":"Hello"})";
const char* const ReadBlock = R"({"type":"tool_use","name":"read_file","id":"t1","input":{"path":"a.txt"}})";
const char* const FinishBlock = R"({"type":"tool_use","name":"finish","id":"f1","input":{}})";

TEST(AgentState, AConversationPassesThroughItsStatesInOrder)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("Hi"));
	EXPECT_EQ(Talk.State(), "InitialRequest");
	Talk.FinishWith(TextBlock);
	EXPECT_EQ(Talk.State(), "AwaitingApproval");
	Interface().Continue(TEXT("More"));
	Talk.FinishWith(TextBlock, true);
	EXPECT_EQ(Talk.State(), "AwaitingUpdate");
	Interface().RegularRequest(TEXT("Again"));
	Talk.Accept();
	Interface().EndRequest(FString());
	EXPECT_THAT(Talk.States,
		ElementsAre("InitialRequest", "PollRequest", "PollResponse", "AwaitingApproval", "Continue", "PollRequest", "PollResponse",
			"AwaitingUpdate", "RegularRequest", "PollRequest", "Idle", "Idle"));
	EXPECT_THAT(Talk.Chat,
		ElementsAre("user| [ User Start ]\n\nHi\n", "progress|Sending request...", "progress|Processing request...",
			"assistant| [ Kestrin ] \n\nHello\n", "user| [ User ]\n\nMore\n", "progress|Sending request...",
			"progress|Processing request...", "assistant| [ Kestrin ] \n\nHello\n", "user| [ User ]\n\nAgain\n",
			"progress|Sending request...", "user| [ User End ]"));
}

TEST(AgentState, RequestsInAWrongStateArePassedOver)
{
	struct FCase
	{
		const char* Name;
		void (*Request)();
	};
	const FCase Cases[] = {
		{ "a second start", [] { Interface().InitialRequest(TEXT("x")); } },
		{ "a further prompt", [] { Interface().RegularRequest(TEXT("x")); } },
		{ "an approval", [] { Interface().Approve(); } },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FConversation Talk;
		Interface().InitialRequest(TEXT("Hi"));
		Talk.Accept();
		Talk.Forget();
		Case.Request();
		EXPECT_EQ(Talk.State(), "PollRequest");
		EXPECT_TRUE(Talk.Chat.empty() && Talk.States.empty());
		EXPECT_EQ(Talk.Wire.GetRequests().Num(), 1);
	}
}

TEST(AgentState, TheSameStateIsNotEnteredTwice)
{
	FConversation Talk;
	FAgent::Get().SetState(EAgentState::AwaitingUpdate);
	FAgent::Get().SetPauseRequested(true);
	Talk.Forget();
	FAgent::Get().SetState(EAgentState::AwaitingUpdate);
	EXPECT_TRUE(FAgent::Get().IsPauseRequested());
	EXPECT_TRUE(Talk.States.empty());
}

TEST(AgentState, EndAndCancelSayWhyAndKeepWhatOutlivesAConversation)
{
	struct FCase
	{
		void (*End)();
		const char* Line;
	};
	const FCase Cases[] = {
		{ [] { Interface().EndRequest(FString()); }, "user| [ User End ]" },
		{ [] { Interface().EndRequest(TEXT("Bye")); }, "user| [ User End ]\n\nBye" },
		{ [] { Interface().CancelRequest(FString()); }, "user| [ Cancelled ]" },
		{ [] { Interface().CancelRequest(TEXT("Why")); }, "user| [ Cancelled ]\n\nWhy\n" },
		{ [] { Interface().Shutdown(); }, "user| [ Cancelled ]" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Line);
		FConversation Talk;
		Talk.StartAndFinishWith(ReadBlock);
		const FString Id = FAgent::Get().GetConversationId();
		EXPECT_EQ(Id.Len(), 32);
		Talk.Forget();
		Case.End();
		EXPECT_THAT(Talk.Chat, ElementsAre(Case.Line));
		EXPECT_THAT(Talk.States, ElementsAre("Idle", "Idle"));
		EXPECT_TRUE(FAgent::Get().GetConversationId().IsEmpty());
		EXPECT_EQ(FAgent::Get().GetUndoConversationId(), Id);
		EXPECT_EQ(FAgent::Get().GetPendingTools().Num(), 1);
	}
}

TEST(AgentState, ANewConversationStartsWithNothingOfTheOldOne)
{
	FConversation Talk;
	Talk.StartAndFinishWith(ReadBlock);
	Interface().EndRequest(FString());
	const FString First = FAgent::Get().GetUndoConversationId();
	Interface().InitialRequest(TEXT("Anew"));
	EXPECT_TRUE(FAgent::Get().GetPendingTools().IsEmpty());
	EXPECT_TRUE(FAgent::Get().GetConversationMessages().IsEmpty());
	EXPECT_NE(FAgent::Get().GetUndoConversationId(), First);
}

TEST(AgentState, ContinueRunsOrAbortsWhatWaits)
{
	struct FCase
	{
		const TCHAR* Input;
		std::string Line;
		std::string Body;
	};
	const FCase Cases[] = {
		{ TEXT(""), "user| [ User ]\n\nThe process has been resumed.\n",
			R"({"message":"","tool_results":[{"type":"tool_result","tool_use_id":"t1","content":"text","is_error":false}],"was_confirmed":true})" },
		{ TEXT("No"), "user| [ User ]\n\nNo\n",
			R"({"message":"No","tool_results":[{"type":"tool_result","tool_use_id":"t1","content":"Abort: User added new input","is_abort":true}],"was_confirmed":true})" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Line);
		FConversation Talk;
		Talk.Project.Write("a.txt", "text");
		Talk.StartAndFinishWith(ReadBlock);
		ASSERT_EQ(Talk.State(), "AwaitingApproval");
		Talk.Forget();
		Interface().Continue(Case.Input);
		EXPECT_EQ(Talk.Chat[0], Case.Line);
		EXPECT_EQ(Talk.LastBody(), Case.Body);
		EXPECT_TRUE(FAgent::Get().GetPendingTools().IsEmpty());
		EXPECT_TRUE(FAgent::Get().GetToolResults().IsEmpty());
	}
}

TEST(AgentState, ContinueIsTakenInIdleAndWithNothingWaiting)
{
	FConversation Talk;
	Interface().Continue(FString());
	EXPECT_EQ(Talk.LastBody(), R"({"message":"","was_confirmed":true})");
	EXPECT_EQ(Talk.LastRequest().Headers[2], (TPair<FString, FString>{ TEXT("conversation-id"), TEXT("") }));
}

TEST(AgentState, AQueuedFinishClearsTheConfirmation)
{
	FConversation Talk;
	Talk.StartAndFinishWith(FinishBlock);
	ASSERT_EQ(Talk.State(), "AwaitingApproval");
	Interface().Continue(FString());
	EXPECT_EQ(Talk.State(), "AwaitingUpdate");
	EXPECT_THAT(Talk.LastBody(), HasSubstr(R"("content":"Finished","is_error":false}],"was_confirmed":false})"));
	Talk.Accept();
	EXPECT_EQ(Talk.State(), "PollRequest");
}

TEST(AgentState, APauseTakesEffectAtTheNextAnswer)
{
	FConversation Talk;
	GetMutableDefault<UKestrinSettings>()->Mode = EKestrinMode::ExplainerAndImplementerMode;
	Interface().InitialRequest(TEXT("Go"));
	Talk.Accept();
	Interface().PauseRequest();
	EXPECT_EQ(Talk.State(), "PollRequest");
	Talk.WaitForPoll();
	Talk.Forget();
	Talk.Answer(
		200, std::string(R"({"status":"COMPLETED","response":{"auto_continue":true,"response":[)") + TextBlock + "," + ReadBlock + "]}}");
	EXPECT_EQ(Talk.State(), "Pause");
	EXPECT_THAT(Talk.Chat, ElementsAre("assistant| [ Kestrin ] \n\nHello\n", "user| [ User ]\n\nThe process has been paused.\n"));
	EXPECT_EQ(FAgent::Get().GetPendingTools().Num(), 1);
	Interface().Continue(FString());
	EXPECT_FALSE(FAgent::Get().IsPauseRequested());
}

TEST(AgentState, APollWhileAPauseIsWantedSaysSo)
{
	FConversation Talk;
	Interface().InitialRequest(TEXT("Go"));
	Talk.Accept();
	Interface().PauseRequest();
	Talk.Forget();
	Talk.WaitForPoll();
	EXPECT_THAT(Talk.Chat, ElementsAre("progress|Pausing request..."));
}

TEST(AgentState, IndexingEndsInIdleOnceTheTreeIsRead)
{
	FConversation Talk;
	FAgent::Get().SetState(EAgentState::Indexing);
	EXPECT_EQ(Talk.State(), "Indexing");
	FMainLoop::RunFor(0.5);
	EXPECT_EQ(Talk.State(), "Idle");
}

TEST(AgentState, AnApprovalAloneMovesNothing)
{
	FConversation Talk;
	Talk.StartAndFinishWith(ReadBlock);
	const int32 Requests = Talk.Wire.GetRequests().Num();
	Interface().Approve();
	FMainLoop::RunFor(30.0);
	EXPECT_EQ(Talk.State(), "Approved");
	EXPECT_EQ(Talk.Wire.GetRequests().Num(), Requests);
}
}
