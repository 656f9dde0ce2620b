#include <gtest/gtest.h>

#include "HTTPHost/ScriptedTransport.h"
#include "HttpTestSupport.h"

namespace
{
FHttpRequestRef Send(const TCHAR* Url, FCompletion& Completion)
{
	FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
	Request->SetVerb(TEXT("POST"));
	Request->SetURL(Url);
	Request->SetHeader(TEXT("b"), TEXT("2"));
	Request->SetHeader(TEXT("a"), TEXT(""));
	Request->SetContentAsString(TEXT("Text ü"));
	Completion.Watch(*Request);
	EXPECT_TRUE(Request->ProcessRequest());
	return Request;
}

TEST(ScriptedTransport, KeepsRequestsAndAnswersThemInAnyOrder)
{
	FScriptedTransport Wire;
	FCompletion First;
	FCompletion Second;
	Send(TEXT("https://x/1"), First);
	Send(TEXT("https://x/2"), Second);
	ASSERT_EQ(Wire.GetRequests().Num(), 2);
	const FScriptedRequest Sent = Wire.GetRequests()[0];
	EXPECT_EQ(Sent.Verb, FString(TEXT("POST")));
	EXPECT_EQ(Sent.Url, FString(TEXT("https://x/1")));
	EXPECT_EQ(Sent.Headers, (TArray<TPair<FString, FString>>{ { TEXT("b"), TEXT("2") }, { TEXT("a"), TEXT("") } }));
	EXPECT_EQ(Sent.Body, FString(TEXT("Text ü")));

	Wire.Answer(Wire.GetRequests()[1].Id, 201, "later one");
	EXPECT_EQ(Second.Calls, 0);
	FMainLoop::Tick();
	ASSERT_TRUE(Second.bConnected);
	EXPECT_EQ(Second.Response->GetResponseCode(), 201);
	EXPECT_EQ(Second.Response->GetContentAsString(), FString(TEXT("later one")));
	EXPECT_EQ(First.Calls, 0);

	Wire.Fail(Sent.Id);
	Wire.Answer(Sent.Id, 200, "too late");
	Wire.Answer(Wire.GetRequests()[1].Id, 200, "twice");
	FMainLoop::Tick();
	FMainLoop::Tick();
	EXPECT_EQ(First.Calls, 1);
	EXPECT_FALSE(First.bConnected);
	EXPECT_EQ(Second.Calls, 1);
}

TEST(ScriptedTransport, ShowsCancelledRequests)
{
	FScriptedTransport Wire;
	FCompletion Completion;
	Send(TEXT("https://x"), Completion)->CancelRequest();
	EXPECT_TRUE(Wire.GetRequests()[0].bCancelled);
	Wire.Answer(Wire.GetRequests()[0].Id, 200, "after all");
	FMainLoop::Tick();
	EXPECT_EQ(Completion.Calls, 1);
	EXPECT_FALSE(Completion.bConnected);
}

TEST(ScriptedTransport, AnswersFromInsideTheSendingComeLaterToo)
{
	FScriptedTransport Wire;
	FCompletion Inner;
	FCompletion Outer;
	Wire.OnRequest = [&](const FScriptedRequest& Request)
	{
		Wire.Answer(Request.Id, 200, "at once");
		if (Wire.GetRequests().Num() == 1)
		{
			Send(TEXT("https://inner"), Inner);
		}
	};
	Send(TEXT("https://outer"), Outer);
	EXPECT_EQ(Outer.Calls + Inner.Calls, 0);
	FMainLoop::Tick();
	EXPECT_TRUE(Outer.bConnected && Inner.bConnected);
}

TEST(ScriptedTransport, RequestsThatWaitAtItsEndFail)
{
	FCompletion Completion;
	{
		FScriptedTransport Wire;
		Send(TEXT("https://x"), Completion);
	}
	FMainLoop::Tick();
	EXPECT_EQ(Completion.Calls, 1);
	EXPECT_FALSE(Completion.bConnected);
}
}
