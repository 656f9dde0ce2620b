#pragma once

#include "CoreMinimal.h"

#include <string>

using FHttpHeaders = TArray<TPair<FString, FString>>;

/** What goes out. */
struct FHttpExchange
{
	int32 Id = 0;
	FString Verb;
	FString Url;
	FHttpHeaders Headers;
	TArray<uint8> Content;
	/** Real seconds for the whole exchange. */
	float Timeout = 0.0f;
	/** A file of certificates to trust beside the system's; it need not exist. */
	FString ExtraCertificates;
};

/** What came of it: an answer, or the reason why there is none. */
struct FHttpOutcome
{
	bool bAnswered = false;
	int32 Code = 0;
	FHttpHeaders Headers;
	TArray<uint8> Content;
	FString FailureReason;
};

/** Carries exchanges out and gives each outcome to FHttpManager::Finish. Called on the game thread. */
class IHttpTransport
{
public:
	virtual ~IHttpTransport() = default;
	virtual void Start(FHttpExchange Exchange) = 0;
	/** The exchange's outcome no longer counts. */
	virtual void Cancel(int32 Id) = 0;
};
