#include <gtest/gtest.h>

#include "CoreHost/Project.h"
#include "HttpTestSupport.h"
#include "Modules/ModuleManager.h"
#include "TlsServer.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace
{
using namespace std::string_literals;

/** A project folder whose certificates the module trusts, and requests to a server. */
class Http : public ::testing::Test
{
protected:
	Http()
	{
		std::string Template = (std::filesystem::temp_directory_path() / "kestrin-http-XXXXXX").string();
		Project = ::mkdtemp(Template.data());
		FHostProject::Set(FUtf8::Decode((Project / "Game.uproject").string()));
	}
	~Http() override
	{
		FModuleManager::Get().UnloadModulesAtShutdown();
		FHostProject::Set(FString());
		std::filesystem::remove_all(Project);
	}

	void Trust(const TlsServer& Server) const
	{
		std::filesystem::create_directories(Project / "Content/Certificates");
		std::ofstream(Project / "Content/Certificates/cacert.pem") << Server.Certificate();
	}
	static FHttpRequestRef MakeRequest(const std::string& Url, const TCHAR* Verb = TEXT("GET"))
	{
		FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
		Request->SetURL(FUtf8::Decode(Url));
		Request->SetVerb(Verb);
		return Request;
	}
	/** Sends the request and waits for its end. */
	static FCompletion Process(const FHttpRequestRef& Request)
	{
		FCompletion Completion;
		Completion.Watch(*Request);
		EXPECT_TRUE(Request->ProcessRequest());
		EXPECT_TRUE(Completion.Wait());
		Request->OnProcessRequestComplete().Unbind();
		return Completion;
	}
	/** A server that never answers. */
	static std::unique_ptr<TlsServer> MakeSilentServer()
	{
		auto Ending = std::make_shared<std::atomic<const TlsServer*>>(nullptr);
		auto Server = std::make_unique<TlsServer>(
			[Ending](const WireRequest&)
			{
			while (!*Ending || !(*Ending).load()->IsEnding())
			{
				std::this_thread::sleep_for(std::chrono::milliseconds(5));
			}
			return std::string();
		});
		*Ending = Server.get();
		return Server;
	}

	std::filesystem::path Project;
};

TEST_F(Http, TheWireShowsWhatWasSetInItsOrder)
{
	TlsServer Server([](const WireRequest&) { return HttpAnswer(200, "gr\xC3\xBC\xC3\x9F", "X-Two:  spaced \r\n"); });
	Trust(Server);
	const FHttpRequestRef Request = MakeRequest(Server.Url() + "/prod/command?a=b", TEXT("post"));
	for (const TCHAR* Name : { u"Content-Type", u"x-api-key", u"Conversation-Id", u"engine", u"engine-version" })
	{
		Request->SetHeader(Name, TEXT("?"));
	}
	Request->SetHeader(TEXT("content-type"), TEXT("application/json"));
	Request->SetHeader(TEXT("x-api-key"), TEXT(""));
	Request->SetHeader(TEXT("engine"), TEXT("++UE5\r\nInjected: yes"));
	Request->AppendToHeader(TEXT("ENGINE-VERSION"), TEXT("5.5"));
	Request->SetContentAsString(TEXT("{\"text\": \"ü\"}"));
	const FCompletion Completion = Process(Request);

	ASSERT_TRUE(Completion.bConnected);
	EXPECT_EQ(Completion.Response->GetResponseCode(), 200);
	EXPECT_EQ(Completion.Response->GetContentAsString(), FString(TEXT("grüß")));
	EXPECT_EQ(Completion.Response->GetHeader(TEXT("x-two")), FString(TEXT("spaced")));
	EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Succeeded);
	ASSERT_EQ(Server.Requests().size(), 1u);
	const WireRequest Sent = Server.Requests()[0];
	EXPECT_EQ(Sent.FirstLine, "POST /prod/command?a=b HTTP/1.1");
	EXPECT_EQ(Sent.HeaderLines,
		(std::vector<std::string>{ "Host: " + Server.Url().substr(8), "Accept: */*", "Content-Type: application/json",
			"x-api-key:", "Conversation-Id: ?", "engine: ++UE5Injected: yes", "engine-version: ?, 5.5", "Content-Length: 14" }));
	EXPECT_EQ(Sent.Body, "{\"text\": \"\xC3\xBC\"}");
}

TEST_F(Http, AnyAnswerIsASuccess)
{
	const struct
	{
		int Code;
		const char* Body;
	} Cases[] = { { 200, "" }, { 401, "{}" }, { 404, "gone" }, { 500, "\xFF\xFE" }, { 302, "elsewhere" } };
	for (const auto& Case : Cases)
	{
		TlsServer Server([&Case](const WireRequest&) { return HttpAnswer(Case.Code, Case.Body, "Location: https://127.0.0.1:1/\r\n"); });
		Trust(Server);
		const FCompletion Completion = Process(MakeRequest(Server.Url()));
		ASSERT_TRUE(Completion.bConnected) << Case.Code;
		EXPECT_EQ(Completion.Response->GetResponseCode(), Case.Code);
		EXPECT_EQ(Completion.Response->GetContent().Num(), static_cast<int32>(std::strlen(Case.Body)));
	}
}

TEST_F(Http, FailuresHaveNoResponseAndTellTheLogWhy)
{
	const auto Expect = [](const std::string& Url, const TCHAR* Reason)
	{
		FCategoryLines Log(TEXT("LogHttp"));
		const FHttpRequestRef Request = MakeRequest(Url + "/path?secret=1");
		const FCompletion Completion = Process(Request);
		EXPECT_FALSE(Completion.bConnected) << Url;
		EXPECT_FALSE(Completion.Response.IsValid());
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Failed);
		ASSERT_EQ(Log.Lines.Num(), 1);
		EXPECT_TRUE(Log.Lines[0].Contains(FUtf8::Decode(Url + "/path failed: "))) << TCHAR_TO_UTF8(*Log.Lines[0]);
		EXPECT_TRUE(Log.Lines[0].Contains(Reason)) << TCHAR_TO_UTF8(*Log.Lines[0]);
		EXPECT_FALSE(Log.Lines[0].Contains(TEXT("secret")));
	};
	TlsServer Untrusted([](const WireRequest&) { return HttpAnswer(200, "never seen"); });
	Expect(Untrusted.Url(), TEXT("certificate"));
	EXPECT_TRUE(Untrusted.Requests().empty());

	TlsServer Truncating([](const WireRequest&) { return "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf"s; });
	Trust(Truncating);
	Expect(Truncating.Url(), TEXT("bytes remaining"));
	Expect(Untrusted.Url(), TEXT("certificate"));

	TlsServer Dropping([](const WireRequest&) { return ""s; });
	Trust(Dropping);
	Expect(Dropping.Url(), TEXT(""));

	Expect("https://127.0.0.1:1", TEXT("connect"));
	Expect("https://name.invalid", TEXT("resolve"));
	Expect("file:///etc", TEXT("Protocol"));
	Expect("https://", TEXT(""));
}

TEST_F(Http, TheTimeoutIsReal)
{
	const std::unique_ptr<TlsServer> Server = MakeSilentServer();
	Trust(*Server);
	const FHttpRequestRef Request = MakeRequest(Server->Url());
	Request->SetTimeout(0.2f);
	const auto Start = std::chrono::steady_clock::now();
	EXPECT_FALSE(Process(Request).bConnected);
	EXPECT_GE(std::chrono::steady_clock::now() - Start, std::chrono::milliseconds(190));
}

TEST_F(Http, ACancelledRequestIsCompletedOnceInALaterFrame)
{
	const std::unique_ptr<TlsServer> Server = MakeSilentServer();
	Trust(*Server);
	const FHttpRequestRef Request = MakeRequest(Server->Url());
	FCompletion Completion;
	Completion.Watch(*Request);
	Request->CancelRequest();
	ASSERT_TRUE(Request->ProcessRequest());
	EXPECT_FALSE(Request->ProcessRequest());
	ASSERT_TRUE(FMainLoop::RunUntil([&Server] { return !Server->Requests().empty(); }, 20.0));
	Request->CancelRequest();
	Request->CancelRequest();
	EXPECT_EQ(Completion.Calls, 0);
	EXPECT_TRUE(Completion.Wait());
	EXPECT_FALSE(Completion.bConnected);
	FMainLoop::RunFor(0.05);
	EXPECT_EQ(Completion.Calls, 1);
}

TEST_F(Http, ShutdownEndsTransfersWithoutAWord)
{
	const std::unique_ptr<TlsServer> Server = MakeSilentServer();
	Trust(*Server);
	const FHttpRequestRef Request = MakeRequest(Server->Url());
	FCompletion Completion;
	Completion.Watch(*Request);
	ASSERT_TRUE(Request->ProcessRequest());
	ASSERT_TRUE(FMainLoop::RunUntil([&Server] { return !Server->Requests().empty(); }, 20.0));
	EXPECT_TRUE(FModuleManager::Get().UnloadModule("HTTP"));
	Request->CancelRequest();
	EXPECT_FALSE(MakeRequest("")->ProcessRequest());
	FMainLoop::RunFor(0.05);
	EXPECT_EQ(Completion.Calls, 0);
}

TEST_F(Http, ManyAndLargeAtTheSameTime)
{
	TlsServer Server([](const WireRequest& Request) { return HttpAnswer(200, Request.Body); });
	Trust(Server);
	constexpr int32 Count = 8;
	FCompletion Completions[Count];
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const FHttpRequestRef Request = MakeRequest(Server.Url(), TEXT("POST"));
		Request->SetContentAsString(FString::ChrN(Index * 300'000, static_cast<TCHAR>('a' + Index)));
		Completions[Index].Watch(*Request);
		// The module alone keeps the request from here on.
		ASSERT_TRUE(Request->ProcessRequest());
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		ASSERT_TRUE(Completions[Index].Wait());
		ASSERT_TRUE(Completions[Index].bConnected);
		EXPECT_EQ(Completions[Index].Response->GetContentAsString(), FString::ChrN(Index * 300'000, static_cast<TCHAR>('a' + Index)));
	}
}

TEST_F(Http, AnUnboundDelegateIsNotMissed)
{
	TlsServer Server([](const WireRequest&) { return HttpAnswer(200, "x"); });
	Trust(Server);
	const FHttpRequestRef Request = MakeRequest(Server.Url());
	ASSERT_TRUE(Request->ProcessRequest());
	EXPECT_TRUE(FMainLoop::RunUntil([&Request] { return Request->GetStatus() != EHttpRequestStatus::Processing; }, 20.0));
	// The same request again.
	EXPECT_TRUE(Process(Request).bConnected);
	EXPECT_EQ(Server.Requests().size(), 2u);
}
}
