#pragma once

#include "Interfaces/IHttpResponse.h"

class IHttpRequest;
using FHttpRequestRef = TSharedRef<IHttpRequest, ESPMode::ThreadSafe>;
using FHttpRequestPtr = TSharedPtr<IHttpRequest, ESPMode::ThreadSafe>;

/** The response is null unless bConnectedSuccessfully; that an answer of any status code came counts as success. */
DECLARE_DELEGATE_ThreeParams(FHttpRequestCompleteDelegate, FHttpRequestPtr, FHttpResponsePtr, bool /*bConnectedSuccessfully*/);

namespace EHttpRequestStatus
{
enum Type
{
	NotStarted,
	Processing,
	Failed,
	Succeeded
};
}

/** One exchange with a server. Game thread; the transfer itself runs elsewhere. */
class IHttpRequest : public IHttpBase
{
public:
	/** "GET" when it is not set. */
	virtual FString GetVerb() const = 0;
	virtual void SetVerb(const FString& Verb) = 0;
	virtual void SetURL(const FString& URL) = 0;
	/** Headers go out in the order in which they were first set, also those with an empty value. Control characters are cut out. */
	virtual void SetHeader(const FString& HeaderName, const FString& HeaderValue) = 0;
	/** Joined to the value that is there with ", ". */
	virtual void AppendToHeader(const FString& HeaderName, const FString& AdditionalHeaderValue) = 0;
	/** Sent as UTF-8. */
	virtual void SetContentAsString(const FString& ContentString) = 0;
	/** For the whole exchange, in real seconds; 180 when it is not set. */
	virtual void SetTimeout(float InTimeoutSecs) = 0;

	/** Called once for each ProcessRequest, in a later frame of the main loop; not when the module is unloaded before that. */
	virtual FHttpRequestCompleteDelegate& OnProcessRequestComplete() = 0;
	/** @return false, with the delegate not called, when the request is being processed already or has no URL */
	virtual bool ProcessRequest() = 0;
	/** Ends the transfer; the delegate is still called, without success. Nothing when there is no transfer. */
	virtual void CancelRequest() = 0;
	virtual EHttpRequestStatus::Type GetStatus() const = 0;
	/** Null until the request has succeeded. */
	virtual const FHttpResponsePtr GetResponse() const = 0;
};
