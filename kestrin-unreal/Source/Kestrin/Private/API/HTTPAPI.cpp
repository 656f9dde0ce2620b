#include "API/HTTPAPI.h"

#include "Agent/Agent.h"
#include "Agent/FileUtils.h"
#include "Agent/KestrinInterface.h"
#include "HAL/PlatformTime.h"
#include "HttpModule.h"
#include "KestrinSettings.h"
#include "Misc/App.h"
#include "Misc/EngineVersion.h"
#include "Misc/Paths.h"
#include "JsonUtils.h"

FString ApiUrlOverride;
FString ApiKeyOverride;

namespace
{
const TCHAR* const DefaultApiUrl = TEXT("api.kestrin.example/prod");
constexpr float FirstPollInterval = 2.0f;
constexpr float PollIntervalGrowth = 1.5f;
constexpr float LongestPollInterval = 10.0f;
constexpr float TickInterval = 0.1f;

/** "5.5" for an engine 5.5.4; empty when the version has fewer than two parts. */
FString GetMajorMinorVersion()
{
	TArray<FString> Parts;
	FEngineVersion::Current().ToString(EVersionComponent::Branch).ParseIntoArray(Parts, TEXT("."), true);
	if (!ensureMsgf(Parts.Num() >= 2, TEXT("Error: Unreal Engine version string is invalid. Expected at least Major.Minor format.")))
	{
		return FString();
	}
	return Parts[0] + TEXT(".") + Parts[1];
}

void SetConversationHeaders(IHttpRequest& Request)
{
	Request.SetHeader(TEXT("x-api-key"), GetApiKey());
	Request.SetHeader(TEXT("conversation-id"), FAgent::Get().GetConversationId());
}

bool IsKeyRefused(int32 ResponseCode)
{
	return ResponseCode == 401 || ResponseCode == 403;
}
}

FString GetApiUrl()
{
	return ApiUrlOverride.IsEmpty() ? FString(DefaultApiUrl) : ApiUrlOverride;
}

FString GetApiKey()
{
	return ApiKeyOverride.IsEmpty() ? GetDefault<UKestrinSettings>()->ApiKey : ApiKeyOverride;
}

FHttpApi& FHttpApi::Get()
{
	static FHttpApi Instance;
	return Instance;
}

FHttpApi::~FHttpApi()
{
	StopPolling();
	DropCommands();
}

void FHttpApi::SendInitialRequest(const FString& Message)
{
	RequestId.Empty();

	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("message"), Message);
	const TSharedPtr<FJsonObject> Tree = ParseJsonObject(FFileUtils::GetSubDirectoryStructureAsJsonObject(FPaths::ProjectDir()));
	if (Tree.IsValid())
	{
		Body->SetObjectField(TEXT("file_structure"), Tree);
	}
	Body->SetBoolField(TEXT("is_confirmation_mode"), GetDefault<UKestrinSettings>()->Mode == EKestrinMode::ExplainerMode);
	SendCommand(ToCondensedJson(Body));
}

void FHttpApi::SendRegularRequest(const FString& Message)
{
	FAgent& Agent = FAgent::Get();
	if (Agent.GetToolResults().IsEmpty())
	{
		SendCommand(FString::Printf(TEXT("{\"message\": %s}"), *ToJsonString(Message)));
		return;
	}
	const FString Results = ToCondensedJson(Agent.GetToolResults());
	Agent.ClearToolResults();
	SendCommand(FString::Printf(TEXT("{\"tool_results\": %s, \"message\": %s}"), *Results, *ToJsonString(Message)));
}

void FHttpApi::SendTypedRequest(const FString& Type)
{
	SendCommand(FString::Printf(TEXT("{\"type\": %s}"), *ToJsonString(Type)));
}

void FHttpApi::SendCommand(const FString& Body)
{
	ResetPollTiming();

	const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
	Request->SetVerb(TEXT("POST"));
	Request->SetURL(FString::Printf(TEXT("https://%s/command"), *GetApiUrl()));
	Request->SetHeader(TEXT("Content-Type"), TEXT("application/json"));
	SetConversationHeaders(*Request);
	Request->SetHeader(TEXT("engine"), FApp::GetBranchName());
	const FString Version = GetMajorMinorVersion();
	if (!Version.IsEmpty())
	{
		Request->SetHeader(TEXT("engine-version"), Version);
	}
	Request->SetContentAsString(Body);
	Request->OnProcessRequestComplete().BindRaw(this, &FHttpApi::HandleCommandResponse);
	CommandsInFlight.Add(Request);
	Request->ProcessRequest();

	OnStatusMessage.ExecuteIfBound(
		TEXT("Sending request..."), FKestrinInterface::MessageColor, FKestrinInterface::ItalicFontName, FKestrinInterface::MessageFontSize);
}

void FHttpApi::DropCommands()
{
	const TArray<FHttpRequestPtr> Dropped = MoveTemp(CommandsInFlight);
	for (const FHttpRequestPtr& Request : Dropped)
	{
		Request->OnProcessRequestComplete().Unbind();
		Request->CancelRequest();
	}
}

void FHttpApi::HandleCommandResponse(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bSucceeded)
{
	CommandsInFlight.Remove(Request);

	const FString Content = bSucceeded && Response.IsValid() ? Response->GetContentAsString() : FString();
	if (Content.IsEmpty())
	{
		OnRequestFailed.ExecuteIfBound(TEXT("Request Failed"));
		return;
	}
	if (IsKeyRefused(Response->GetResponseCode()))
	{
		OnRequestFailed.ExecuteIfBound(TEXT("Make sure you have a valid API key."));
		return;
	}
	const TSharedPtr<FJsonObject> Answer = ParseJsonObject(Content);
	if (!Answer.IsValid())
	{
		OnRequestFailed.ExecuteIfBound(TEXT("Failed to parse initial response"));
		return;
	}
	FString NewRequestId;
	if (!Answer->TryGetStringField(TEXT("request_id"), NewRequestId))
	{
		OnRequestFailed.ExecuteIfBound(TEXT("Failed to get request ID from response"));
		return;
	}
	AcceptCommand(NewRequestId);
}

void FHttpApi::AcceptCommand(const FString& NewRequestId)
{
	RequestId = NewRequestId;
	bIsPolling = true;
	LastPollTime = FPlatformTime::Seconds();
	StartPolling();
	OnRequestAccepted.ExecuteIfBound();
}

void FHttpApi::StartPolling()
{
	if (!bIsPolling)
	{
		return;
	}
	if (PollTickerHandle.IsValid())
	{
		FTSTicker::GetCoreTicker().RemoveTicker(PollTickerHandle);
	}
	PollTickerHandle = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateRaw(this, &FHttpApi::OnPollTick), TickInterval);
}

bool FHttpApi::OnPollTick(float DeltaTime)
{
	if (!bIsPolling)
	{
		return false;
	}
	const double Now = FPlatformTime::Seconds();
	if (Now - LastPollTime < PollInterval)
	{
		return true;
	}
	PollStatus(RequestId);
	LastPollTime = Now;
	PollInterval = FMath::Min(PollInterval * PollIntervalGrowth, LongestPollInterval);
	return true;
}

void FHttpApi::PollStatus(const FString& Id)
{
	if (!bIsPolling)
	{
		return;
	}
	const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
	Request->SetVerb(TEXT("GET"));
	Request->SetURL(FString::Printf(TEXT("https://%s/status?request_id=%s"), *GetApiUrl(), *Id));
	SetConversationHeaders(*Request);
	Request->OnProcessRequestComplete().BindRaw(this, &FHttpApi::HandleStatusResponse, Id);
	Request->ProcessRequest();
	OnPollSent.ExecuteIfBound();
}

void FHttpApi::HandleStatusResponse(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bSucceeded, FString PolledId)
{
	// Two polls may be in flight, and a finished request may be followed by another: an answer counts for its own id alone.
	if (!bIsPolling || PolledId != RequestId || !bSucceeded || !Response.IsValid())
	{
		return;
	}
	const TSharedPtr<FJsonObject> Answer = ParseJsonObject(Response->GetContentAsString());
	FString Status;
	if (Answer.IsValid() && Answer->TryGetStringField(TEXT("status"), Status))
	{
		HandleStatus(Status, *Answer);
	}
}

void FHttpApi::HandleStatus(const FString& Status, const FJsonObject& Answer)
{
	if (Status.Equals(TEXT("COMPLETED"), ESearchCase::IgnoreCase))
	{
		StopPolling();
		const TSharedPtr<FJsonObject>* Finished = nullptr;
		if (Answer.TryGetObjectField(TEXT("response"), Finished))
		{
			OnResponseReady.ExecuteIfBound(*Finished);
		}
	}
	else if (Status.Equals(TEXT("FAILED"), ESearchCase::IgnoreCase))
	{
		StopPolling();
		FString Error;
		if (Answer.TryGetStringField(TEXT("error"), Error))
		{
			OnServiceError.ExecuteIfBound(Error);
		}
	}
}

void FHttpApi::StopPolling()
{
	bIsPolling = false;
	if (PollTickerHandle.IsValid())
	{
		FTSTicker::GetCoreTicker().RemoveTicker(PollTickerHandle);
		PollTickerHandle.Reset();
	}
	ResetPollTiming();
}

void FHttpApi::ResetPollTiming()
{
	PollInterval = FirstPollInterval;
	LastPollTime = 0.0;
}
