#include "Agent/KestrinInterface.h"
#include "KestrinSettings.h"
#include "Support/Conversation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
const char* const Read = R"({"type":"TOOL_USE","name":"read_file","id":"t1","input":{"path":"a.txt"}})";
const char* const Finish = R"({"type":"tool_use","name":"Finish","id":"f1","input":{}})";
const char* const ReadResult = R"({"type":"tool_result","tool_use_id":"t1","content":"text","is_error":false})";
const char* const FinishResult = R"({"type":"tool_result","tool_use_id":"f1","content":"Finished","is_error":false})";

struct FAnswerCase
{
	const char* Name;
	EKestrinMode Mode;
	std::string Response;
	const char* State;
	/** What is sent at the end of the answer; empty for nothing. */
	std::string Body;
	int32 Pending;
};

std::string Results(const std::string& Items, const std::string& Rest = "")
{
	return "{\"tool_results\":[" + Items + "]" + Rest + "}";
}

TEST(Response, TheModeAndTheServiceDecideWhatRuns)
{
	constexpr EKestrinMode Explain = EKestrinMode::ExplainerMode;
	constexpr EKestrinMode Implement = EKestrinMode::ExplainerAndImplementerMode;
	const std::string ReadText = Read;
	const FAnswerCase Cases[] = {
		{ "nothing to do", Explain, R"({"response":[]})", "AwaitingApproval", "", 0 },
		{ "nothing to do, going on", Explain, R"({"auto_continue":true,"response":[]})", "AwaitingUpdate", "", 0 },
		{ "nothing to do, implementing", Implement, R"({"response":[]})", "AwaitingUpdate", "", 0 },
		{ "a call waits", Explain, R"({"response":[)" + ReadText + "]}", "AwaitingApproval", "", 1 },
		{ "a call runs", Explain, R"({"auto_continue":true,"response":[)" + ReadText + "]}", "PollResponse",
			Results(ReadResult, R"(,"was_confirmed":true)"), 0 },
		{ "a call runs, implementing", Implement, R"({"response":[)" + ReadText + "]}", "PollResponse", Results(ReadResult), 0 },
		{ "a call behind finish waits", Explain, R"({"auto_continue":true,"response":[)" + ReadText + "," + Finish + "," + Read + "]}",
			"AwaitingUpdate", Results(ReadResult + std::string(",") + FinishResult, R"(,"was_confirmed":false)"), 1 },
		{ "a call behind finish runs, implementing", Implement, R"({"response":[)" + std::string(Finish) + "," + Read + "]}",
			"AwaitingUpdate", Results(FinishResult + std::string(",") + ReadResult), 0 },
		{ "no blocks", Explain, R"({"auto_continue":true,"messages":[{"role":"user"}]})", "PollResponse", "", 0 },
		{ "odd elements", Explain, R"({"response":[null,7,"x",[],{},{"type":"image"},{"type":"text"},{"type":7}]})", "AwaitingApproval", "",
			0 },
	};
	for (const FAnswerCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FConversation Talk;
		Talk.Project.Write("a.txt", "text");
		GetMutableDefault<UKestrinSettings>()->Mode = Case.Mode;
		FKestrinInterface::Get().InitialRequest(TEXT("Go"));
		Talk.Finish(Case.Response);
		EXPECT_EQ(Talk.State(), Case.State);
		EXPECT_EQ(FAgent::Get().GetPendingTools().Num(), Case.Pending);
		const bool bSent = Talk.CountRequests(TEXT("POST")) == 2;
		EXPECT_EQ(bSent ? Talk.LastBody() : "", Case.Body);
	}
}

TEST(Response, AFinishIsFollowedByTheNextPoll)
{
	FConversation Talk;
	Talk.StartAndFinishWith(Finish, true);
	EXPECT_EQ(Talk.State(), "AwaitingUpdate");
	Talk.Accept("r2");
	EXPECT_EQ(Talk.State(), "PollRequest");
}

TEST(Response, ResultsThatWaitGoOutEvenWhenAPauseIsWanted)
{
	FConversation Talk;
	FKestrinInterface::Get().InitialRequest(TEXT("Go"));
	Talk.Accept();
	FAgent::Get().AddToolResult(MakeShared<FJsonValueString>(TEXT("from elsewhere")));
	FKestrinInterface::Get().PauseRequest();
	Talk.WaitForPoll();
	Talk.Answer(200, R"({"status":"COMPLETED","response":{"response":[]}})");
	EXPECT_EQ(Talk.LastBody(), Results("\"from elsewhere\"", R"(,"was_confirmed":false)"));
	EXPECT_EQ(Talk.State(), "PollResponse");
}

TEST(Response, TheRecordHoldsTheMessagesAndTheTurn)
{
	FConversation Talk;
	FKestrinInterface::Get().InitialRequest(TEXT("Go"));
	Talk.Finish(R"({"messages":[{"role":"user"},5,null],"response":[{"type":"text","text":"x"}]})");
	const TArray<TSharedPtr<FJsonValue>>& Record = FAgent::Get().GetConversationMessages();
	ASSERT_EQ(Record.Num(), 2);
	EXPECT_EQ(Record[0]->AsObject()->GetStringField(TEXT("role")), FString(TEXT("user")));
	EXPECT_EQ(Record[1]->AsObject()->GetStringField(TEXT("role")), FString(TEXT("assistant")));
	EXPECT_EQ(Record[1]->AsObject()->GetArrayField(TEXT("content")).Num(), 1);
}

TEST(Response, AMissingAnswerCancels)
{
	FConversation Talk;
	FKestrinInterface::Get().InitialRequest(TEXT("Go"));
	Talk.Forget();
	FAgent::Get().HandleServiceResponse(nullptr);
	EXPECT_THAT(Talk.Chat, ElementsAre("user| [ Cancelled ]\n\nFailed to parse API response\n"));
}

TEST(Response, OddCallsAreAnsweredLikeAnyOther)
{
	struct FCase
	{
		const char* Block;
		const char* Result;
	};
	const FCase Cases[] = {
		{ R"({"type":"tool_use","name":"dance","id":"1","input":{}})",
			R"({"type":"tool_result","tool_use_id":"1","content":"Error: Unknown tool 'dance'","is_error":true})" },
		{ R"({"type":"tool_use","name":"dance","id":"1"})",
			R"({"type":"tool_result","tool_use_id":"1","content":"Error: Invalid input","is_error":true})" },
		{ R"({"type":"tool_use","name":"finish","id":"1","input":"none"})",
			R"({"type":"tool_result","tool_use_id":"1","content":"Error: Invalid input","is_error":true})" },
		{ R"({"type":"tool_use","input":{}})",
			R"({"type":"tool_result","tool_use_id":"","content":"Error: Unknown tool ''","is_error":true})" },
		{ R"({"type":"tool_use","name":"read_file","id":7,"input":{"path":"a.txt"}})",
			R"({"type":"tool_result","tool_use_id":"7","content":"text","is_error":false})" },
		{ R"({"type":"tool_use","name":"read_file","id":"1","input":{"path":"error.txt"}})",
			R"({"type":"tool_result","tool_use_id":"1","content":"eRRor: said the file","is_error":true})" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Block);
		FConversation Talk;
		Talk.Project.Write("a.txt", "text");
		Talk.Project.Write("error.txt", "eRRor: said the file");
		Talk.StartAndFinishWith(Case.Block, true);
		EXPECT_EQ(Talk.LastBody(), Results(Case.Result, R"(,"was_confirmed":true)"));
	}
}

TEST(Response, TextBehindACallIsShownAfterTheCall)
{
	FConversation Talk;
	Talk.Project.Write("a.txt", "text");
	FKestrinInterface::Get().InitialRequest(TEXT("Go"));
	Talk.Accept();
	Talk.WaitForPoll();
	Talk.Forget();
	Talk.Answer(200,
		std::string(R"({"status":"COMPLETED","response":{"auto_continue":true,"response":[)") + Read +
			R"(,{"type":"text","text":"Read it."}]}})");
	EXPECT_THAT(Talk.Chat, ElementsAre("progress|Reading File...", "assistant| [ Kestrin ] \n\nRead it.\n", "progress|Sending request..."));
}
}
