#pragma once

#include "HttpHeaders.h"
#include "Interfaces/IHttpResponse.h"

class FHttpResponse final : public IHttpResponse
{
public:
	FHttpResponse(const FString& InUrl, FHttpOutcome InOutcome)
		: Url(InUrl)
		, Outcome(MoveTemp(InOutcome))
	{
	}

	FString GetURL() const override { return Url; }
	FString GetHeader(const FString& HeaderName) const override { return HttpHeaders::Find(Outcome.Headers, HeaderName); }
	TArray<FString> GetAllHeaders() const override { return HttpHeaders::ToLines(Outcome.Headers); }
	const TArray<uint8>& GetContent() const override { return Outcome.Content; }
	int32 GetResponseCode() const override { return Outcome.Code; }
	FString GetContentAsString() const override
	{
		return FUtf8::Decode({ reinterpret_cast<const char*>(Outcome.Content.GetData()), static_cast<SIZE_T>(Outcome.Content.Num()) });
	}

private:
	FString Url;
	FHttpOutcome Outcome;
};
