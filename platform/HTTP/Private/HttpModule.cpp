#include "HttpModule.h"

#include "HttpManager.h"
#include "HttpRequest.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FHttpModule, HTTP)

FHttpModule& FHttpModule::Get()
{
	return FModuleManager::LoadModuleChecked<FHttpModule>("HTTP");
}

void FHttpModule::StartupModule()
{
	Manager = MakeShared<FHttpManager>();
}

void FHttpModule::ShutdownModule()
{
	Manager.Reset();
}

TSharedRef<IHttpRequest, ESPMode::ThreadSafe> FHttpModule::CreateRequest()
{
	return MakeShared<FHttpRequest>(Manager);
}
