#include "HttpRequest.h"

#include "HttpHeaders.h"
#include "HttpManager.h"
#include "HttpResponse.h"
#include "Misc/Paths.h"

#include <algorithm>

namespace
{
/** A line end in a header would begin another one. */
FString WithoutControlCharacters(const FString& Text)
{
	FString Result = Text;
	std::erase_if(Result.Native(), [](TCHAR Char) { return Char < 32 || Char == 127; });
	return Result;
}

/** The URL as a log may show it: the query can hold what is not for everybody. */
FString WithoutQuery(const FString& Url)
{
	int32 Query = INDEX_NONE;
	return Url.FindChar('?', Query) ? Url.Left(Query) : Url;
}
}

FString FHttpRequest::GetHeader(const FString& HeaderName) const
{
	return HttpHeaders::Find(Headers, HeaderName);
}

TArray<FString> FHttpRequest::GetAllHeaders() const
{
	return HttpHeaders::ToLines(Headers);
}

void FHttpRequest::SetHeader(const FString& HeaderName, const FString& HeaderValue)
{
	const FString Name = WithoutControlCharacters(HeaderName);
	const FString Value = WithoutControlCharacters(HeaderValue);
	const int32 Index = HttpHeaders::IndexOf(Headers, Name);
	if (Index == INDEX_NONE)
	{
		Headers.Add({ Name, Value });
	}
	else
	{
		Headers[Index].Value = Value;
	}
}

void FHttpRequest::AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue)
{
	const FString Old = GetHeader(HeaderName);
	SetHeader(HeaderName, Old.IsEmpty() ? AdditionalHeaderValue : Old + TEXT(", ") + AdditionalHeaderValue);
}

void FHttpRequest::SetContentAsString(const FString& ContentString)
{
	const std::string Bytes = FUtf8::Encode(ContentString);
	Content = TArray<uint8>(reinterpret_cast<const uint8*>(Bytes.data()), static_cast<int32>(Bytes.size()));
}

bool FHttpRequest::ProcessRequest()
{
	const TSharedPtr<FHttpManager> Keeper = Manager.Pin();
	if (!Keeper)
	{
		return Refuse(TEXT("the module is unloaded"));
	}
	if (Url.IsEmpty())
	{
		return Refuse(TEXT("it has no URL"));
	}
	if (Status == EHttpRequestStatus::Processing)
	{
		return Refuse(TEXT("it is being processed already"));
	}
	Status = EHttpRequestStatus::Processing;
	Response.Reset();
	ExchangeId = Keeper->MakeId();
	Keeper->Start(AsShared(), MakeExchange());
	return true;
}

bool FHttpRequest::Refuse(const TCHAR* Reason) const
{
	UE_LOG(LogHttp, Warning, TEXT("%s %s was not sent: %s"), *Verb, *WithoutQuery(Url), Reason);
	return false;
}

FHttpExchange FHttpRequest::MakeExchange() const
{
	FHttpExchange Exchange;
	Exchange.Id = ExchangeId;
	Exchange.Verb = Verb;
	Exchange.Url = Url;
	Exchange.Headers = Headers;
	Exchange.Content = Content;
	Exchange.Timeout = Timeout;
	Exchange.ExtraCertificates = FPaths::Combine(FPaths::ProjectContentDir(), TEXT("Certificates/cacert.pem"));
	return Exchange;
}

void FHttpRequest::CancelRequest()
{
	const TSharedPtr<FHttpManager> Keeper = Manager.Pin();
	if (Keeper && Status == EHttpRequestStatus::Processing)
	{
		Keeper->Cancel(ExchangeId);
	}
}

void FHttpRequest::Complete(FHttpOutcome Outcome)
{
	const bool bAnswered = Outcome.bAnswered;
	Status = bAnswered ? EHttpRequestStatus::Succeeded : EHttpRequestStatus::Failed;
	if (bAnswered)
	{
		Response = MakeShared<FHttpResponse>(Url, MoveTemp(Outcome));
	}
	else
	{
		UE_LOG(LogHttp, Warning, TEXT("%s %s failed: %s"), *Verb, *WithoutQuery(Url), *Outcome.FailureReason);
	}
	CompleteDelegate.ExecuteIfBound(AsShared(), Response, bAnswered);
}
