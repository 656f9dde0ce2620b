#pragma once

#include "Containers/Ticker.h"
#include "HAL/CriticalSection.h"
#include "HttpTransport.h"

class FHttpRequest;

DECLARE_LOG_CATEGORY_EXTERN(LogHttp, Log, All);

/** The requests that are being processed, and the way back from the transport to the game thread. */
class FHttpManager
{
public:
	FHttpManager();
	~FHttpManager();
	UE_NONCOPYABLE(FHttpManager)

	/** For an exchange that is to be started. */
	int32 MakeId() { return ++LastId; }
	/** Keeps the request until its outcome is delivered. */
	void Start(const TSharedRef<FHttpRequest>& Request, FHttpExchange Exchange);
	void Cancel(int32 Id);
	/** Delivers the outcome in a later frame, unless the exchange has one already. Any thread. */
	void Finish(int32 Id, FHttpOutcome Outcome);

	/** Sends through another transport; null for the wire. */
	void SetOverride(IHttpTransport* Transport) { Override = Transport; }

private:
	struct FFinished
	{
		int32 Id;
		FHttpOutcome Outcome;
	};

	IHttpTransport& GetTransport() { return Override ? *Override : *Wire; }
	bool Deliver();

	int32 LastId = 0;
	TMap<int32, TSharedPtr<FHttpRequest>> Active;
	TUniquePtr<IHttpTransport> Wire;
	IHttpTransport* Override = nullptr;

	FCriticalSection FinishedLock;
	TArray<FFinished> Finished;
	FTSTicker::FDelegateHandle DeliverTicker;
};
