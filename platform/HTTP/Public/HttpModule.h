#pragma once

// HTTP: requests over libcurl, with TLS that is always verified: against the system's certificates and those of
// <Project>/Content/Certificates/cacert.pem. HTTP/1.1; redirects are answers like others and are not followed.
//
// It leaves out streaming, cookies, compression, multipart bodies and requests outside the main loop.

#include "Interfaces/IHttpRequest.h"
#include "Modules/ModuleInterface.h"

class FHttpManager;

class HTTP_API FHttpModule : public IModuleInterface
{
public:
	/** Loads the module when it is not loaded. */
	static FHttpModule& Get();

	TSharedRef<IHttpRequest, ESPMode::ThreadSafe> CreateRequest();
	FHttpManager& GetHttpManager() { return *Manager; }

	void StartupModule() override;
	/** Ends the transfers in flight; their delegates are not called any more. */
	void ShutdownModule() override;

private:
	TSharedPtr<FHttpManager> Manager;
};
