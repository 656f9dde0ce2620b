#include "Framework/Application/SlateApplication.h"

#include "Templates/UniquePtr.h"

namespace
{
TUniquePtr<FSlateApplication>& Instance()
{
	static TUniquePtr<FSlateApplication> Application;
	return Application;
}
}

void FSlateApplication::Create(const TSharedRef<FSlateRenderer>& InRenderer)
{
	Instance() = MakeUnique<FSlateApplication>();
	Instance()->Renderer = InRenderer;
}

void FSlateApplication::Shutdown()
{
	Instance().Reset();
}

bool FSlateApplication::IsInitialized()
{
	return Instance().IsValid();
}

FSlateApplication& FSlateApplication::Get()
{
	check(IsInitialized());
	return *Instance();
}
