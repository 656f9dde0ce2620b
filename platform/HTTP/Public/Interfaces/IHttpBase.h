#pragma once

#include "CoreMinimal.h"

/** What requests and responses have in common. */
class IHttpBase
{
public:
	virtual ~IHttpBase() = default;

	virtual FString GetURL() const = 0;
	/** Names ignore case; empty when there is no such header. */
	virtual FString GetHeader(const FString& HeaderName) const = 0;
	/** Each as "Name: Value", in their order. */
	virtual TArray<FString> GetAllHeaders() const = 0;
	virtual const TArray<uint8>& GetContent() const = 0;
};
