#pragma once

#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Interfaces/IHttpRequest.h"
#include "Interfaces/IHttpResponse.h"

/** The service's address (no scheme) and key from the stage file; empty when none is selected. */
extern FString ApiUrlOverride;
extern FString ApiKeyOverride;
/** Host and base path, without a scheme. */
FString GetApiUrl();
FString GetApiKey();

DECLARE_DELEGATE(FOnHttpApiEvent);
DECLARE_DELEGATE_OneParam(FOnHttpApiText, const FString&);
DECLARE_DELEGATE_OneParam(FOnHttpApiResponse, TSharedPtr<FJsonObject>);
DECLARE_DELEGATE_FourParams(FOnHttpApiStatusMessage, FString, FLinearColor, FName, float);

/**
 * The client of the hosted service. A POST to /command starts a piece of work and is answered with a request id; GETs to /status
 * ask after that id, at growing intervals, until the work has finished. Game thread only; transfers run elsewhere.
 */
class FHttpApi
{
public:
	/** Built on first use; lives as long as the process. */
	static FHttpApi& Get();
	~FHttpApi();
	UE_NONCOPYABLE(FHttpApi)

	/** A line for the chat: text, colour, font name, font size. */
	FOnHttpApiStatusMessage OnStatusMessage;
	/** The POST failed; the text is for the user. */
	FOnHttpApiText OnRequestFailed;
	/** The POST gave a request id; polling runs. */
	FOnHttpApiEvent OnRequestAccepted;
	/** The work finished with an answer. */
	FOnHttpApiResponse OnResponseReady;
	/** The work failed; the text is the service's. */
	FOnHttpApiText OnServiceError;
	/** A status GET went out. */
	FOnHttpApiEvent OnPollSent;

	/** The first prompt of a conversation, with the project's tree. Blocks while the tree is read. */
	void SendInitialRequest(const FString& Message);
	/** A further prompt, with the tool results that wait, which are taken from the agent. */
	void SendRegularRequest(const FString& Message);
	/** A request of which the service knows no more than its type. */
	void SendTypedRequest(const FString& Type);
	/** Body: a JSON document. */
	void SendCommand(const FString& Body);
	/** Ends polling; the answer of a poll still on its way is dropped. */
	void StopPolling();
	/** Cancels the commands still on their way; nothing is heard of them any more. */
	void DropCommands();

private:
	FHttpApi() = default;

	void HandleCommandResponse(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bSucceeded);
	void HandleStatusResponse(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bSucceeded, FString PolledId);
	void AcceptCommand(const FString& NewRequestId);
	void HandleStatus(const FString& Status, const FJsonObject& Answer);
	void StartPolling();
	bool OnPollTick(float DeltaTime);
	void PollStatus(const FString& Id);
	void ResetPollTiming();

	/** The id that the polls ask after. */
	FString RequestId;
	bool bIsPolling = false;
	FTSTicker::FDelegateHandle PollTickerHandle;
	/** Seconds between polls; grows while a request lasts. */
	float PollInterval = 2.0f;
	/** When the last poll went out, in seconds of FPlatformTime. */
	double LastPollTime = 0.0;
	TArray<FHttpRequestPtr> CommandsInFlight;
};
