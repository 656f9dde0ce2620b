#pragma once

#include "Interfaces/IHttpBase.h"

class IHttpResponse : public IHttpBase
{
public:
	virtual int32 GetResponseCode() const = 0;
	/** The content, read as UTF-8. */
	virtual FString GetContentAsString() const = 0;
};

using FHttpResponsePtr = TSharedPtr<IHttpResponse, ESPMode::ThreadSafe>;
