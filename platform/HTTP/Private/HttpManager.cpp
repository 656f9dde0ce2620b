#include "HttpManager.h"

#include "CurlTransport.h"
#include "HttpRequest.h"
#include "Misc/ScopeLock.h"

DEFINE_LOG_CATEGORY(LogHttp);

FHttpManager::FHttpManager()
	: Wire(MakeUnique<FCurlTransport>([this](int32 Id, FHttpOutcome Outcome) { Finish(Id, MoveTemp(Outcome)); }))
{
}

FHttpManager::~FHttpManager()
{
	// Once the transport is gone no thread calls Finish any more.
	Wire.Reset();
	FTSTicker::RemoveTicker(DeliverTicker);
}

void FHttpManager::Start(const TSharedRef<FHttpRequest>& Request, FHttpExchange Exchange)
{
	Active.Add(Exchange.Id, Request);
	GetTransport().Start(MoveTemp(Exchange));
}

void FHttpManager::Cancel(int32 Id)
{
	GetTransport().Cancel(Id);
	FHttpOutcome Outcome;
	Outcome.FailureReason = TEXT("cancelled");
	Finish(Id, MoveTemp(Outcome));
}

void FHttpManager::Finish(int32 Id, FHttpOutcome Outcome)
{
	FScopeLock Lock(&FinishedLock);
	Finished.Add({ Id, MoveTemp(Outcome) });
	if (Finished.Num() == 1)
	{
		DeliverTicker = FTSTicker::GetCoreTicker().AddTicker(TEXT("HTTP"), 0.0f, [this](float) { return Deliver(); });
	}
}

bool FHttpManager::Deliver()
{
	TArray<FFinished> Delivered;
	{
		FScopeLock Lock(&FinishedLock);
		Delivered = MoveTemp(Finished);
	}
	for (FFinished& Each : Delivered)
	{
		// Of two outcomes, for example of a cancelled exchange that ended all the same, the first one counts.
		if (const TSharedPtr<FHttpRequest> Request = Active.FindRef(Each.Id))
		{
			Active.Remove(Each.Id);
			Request->Complete(MoveTemp(Each.Outcome));
		}
	}
	return false;
}
