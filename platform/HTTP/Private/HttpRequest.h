#pragma once

#include "HttpTransport.h"
#include "Interfaces/IHttpRequest.h"

class FHttpManager;

class FHttpRequest final : public IHttpRequest, public TSharedFromThis<FHttpRequest>
{
public:
	explicit FHttpRequest(const TSharedPtr<FHttpManager>& InManager)
		: Manager(InManager)
	{
	}

	FString GetURL() const override { return Url; }
	FString GetHeader(const FString& HeaderName) const override;
	TArray<FString> GetAllHeaders() const override;
	const TArray<uint8>& GetContent() const override { return Content; }
	FString GetVerb() const override { return Verb; }
	void SetVerb(const FString& InVerb) override { Verb = InVerb.ToUpper(); }
	void SetURL(const FString& InUrl) override { Url = InUrl; }
	void SetHeader(const FString& HeaderName, const FString& HeaderValue) override;
	void AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue) override;
	void SetContentAsString(const FString& ContentString) override;
	void SetTimeout(float InTimeoutSecs) override { Timeout = InTimeoutSecs; }
	FHttpRequestCompleteDelegate& OnProcessRequestComplete() override { return CompleteDelegate; }
	bool ProcessRequest() override;
	void CancelRequest() override;
	EHttpRequestStatus::Type GetStatus() const override { return Status; }
	const FHttpResponsePtr GetResponse() const override { return Response; }

	/** Takes the outcome and calls the delegate. */
	void Complete(FHttpOutcome Outcome);

private:
	/** @return false */
	bool Refuse(const TCHAR* Reason) const;
	FHttpExchange MakeExchange() const;

	/** Not kept alive: a request may outlive the module. */
	TWeakPtr<FHttpManager> Manager;
	int32 ExchangeId = 0;
	FString Verb = TEXT("GET");
	FString Url;
	FHttpHeaders Headers;
	TArray<uint8> Content;
	float Timeout = 180.0f;
	EHttpRequestStatus::Type Status = EHttpRequestStatus::NotStarted;
	FHttpRequestCompleteDelegate CompleteDelegate;
	FHttpResponsePtr Response;
};
