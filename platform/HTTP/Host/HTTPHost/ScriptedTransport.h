#pragma once

#include "CoreMinimal.h"

#include <string_view>

/** A request as it would have gone over the wire. */
struct FScriptedRequest
{
	int32 Id = 0;
	FString Verb;
	FString Url;
	/** In wire order, without those that the transport adds. */
	TArray<TPair<FString, FString>> Headers;
	FString Body;
	/** Its sender no longer waits. */
	bool bCancelled = false;
};

/**
 * While one of these lives it takes the wire's place: it keeps each request that is sent, and the test answers it when it wants to, or
 * never. Answers reach their request's delegate in a later frame, as over the wire. One at a time; game thread.
 */
class HTTP_API FScriptedTransport
{
public:
	FScriptedTransport();
	/** Requests that wait are failed. */
	~FScriptedTransport();
	UE_NONCOPYABLE(FScriptedTransport)

	/** Called inside ProcessRequest, when it is set. */
	TFunction<void(const FScriptedRequest& Request)> OnRequest;

	/** All requests so far; valid until the next is sent. */
	const TArray<FScriptedRequest>& GetRequests() const;
	/** @param Body bytes, UTF-8 or not */
	void Answer(int32 Id, int32 Code, std::string_view Body);
	/** As if there were no connection. */
	void Fail(int32 Id);

private:
	class FTransport;
	TUniquePtr<FTransport> Transport;
};
