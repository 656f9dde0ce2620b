#include "HTTPHost/ScriptedTransport.h"

#include "HttpManager.h"
#include "HttpModule.h"

class FScriptedTransport::FTransport final : public IHttpTransport
{
public:
	explicit FTransport(FScriptedTransport& InOwner)
		: Owner(InOwner)
	{
	}

	void Start(FHttpExchange Exchange) override
	{
		FScriptedRequest& Request = Requests.AddDefaulted_GetRef();
		Request.Id = Exchange.Id;
		Request.Verb = Exchange.Verb;
		Request.Url = Exchange.Url;
		Request.Headers = Exchange.Headers;
		Request.Body =
			FUtf8::Decode({ reinterpret_cast<const char*>(Exchange.Content.GetData()), static_cast<SIZE_T>(Exchange.Content.Num()) });
		if (Owner.OnRequest)
		{
			// What it does may send further requests.
			const FScriptedRequest Sent = Request;
			Owner.OnRequest(Sent);
		}
	}

	void Cancel(int32 Id) override
	{
		if (FScriptedRequest* const Request = Requests.FindByPredicate([Id](const FScriptedRequest& Each) { return Each.Id == Id; }))
		{
			Request->bCancelled = true;
		}
	}

	FScriptedTransport& Owner;
	TArray<FScriptedRequest> Requests;
};

FScriptedTransport::FScriptedTransport()
	: Transport(MakeUnique<FTransport>(*this))
{
	FHttpModule::Get().GetHttpManager().SetOverride(Transport.Get());
}

FScriptedTransport::~FScriptedTransport()
{
	for (const FScriptedRequest& Request : Transport->Requests)
	{
		Fail(Request.Id);
	}
	FHttpModule::Get().GetHttpManager().SetOverride(nullptr);
}

const TArray<FScriptedRequest>& FScriptedTransport::GetRequests() const
{
	return Transport->Requests;
}

void FScriptedTransport::Answer(int32 Id, int32 Code, std::string_view Body)
{
	FHttpOutcome Outcome;
	Outcome.bAnswered = true;
	Outcome.Code = Code;
	Outcome.Content = TArray<uint8>(reinterpret_cast<const uint8*>(Body.data()), static_cast<int32>(Body.size()));
	FHttpModule::Get().GetHttpManager().Finish(Id, MoveTemp(Outcome));
}

void FScriptedTransport::Fail(int32 Id)
{
	FHttpOutcome Outcome;
	Outcome.FailureReason = TEXT("no connection");
	FHttpModule::Get().GetHttpManager().Finish(Id, MoveTemp(Outcome));
}
