#pragma once

#include "HttpTransport.h"

#include <curl/curl.h>

/** One exchange, set up for curl. */
class FCurlTransfer
{
public:
	explicit FCurlTransfer(FHttpExchange InExchange);
	~FCurlTransfer();
	UE_NONCOPYABLE(FCurlTransfer)

	int32 GetId() const { return Exchange.Id; }
	CURL* GetHandle() const { return Handle; }
	/** After the end. */
	FHttpOutcome TakeOutcome(CURLcode Result);

private:
	void SetUpRequest();
	void SetUpHeaders();
	void SetUpLimits();
	void SetUpTrust();
	void AddHeaderLine(const FString& Line);
	static size_t OnBody(char* Data, size_t Size, size_t Count, void* Self);
	static size_t OnHeader(char* Data, size_t Size, size_t Count, void* Self);

	FHttpExchange Exchange;
	FHttpOutcome Outcome;
	CURL* const Handle;
	curl_slist* HeaderLines = nullptr;
	char ErrorText[CURL_ERROR_SIZE] = {};
};
