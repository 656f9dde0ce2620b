#include "Engine/Engine.h"

#include "Misc/OutputDeviceRedirector.h"

UEngine* GEngine = nullptr;

void UEngine::TickDeferredCommands()
{
	const TArray<FString> Commands = MoveTemp(DeferredCommands);
	for (const FString& Command : Commands)
	{
		if (!Exec(nullptr, *Command, *GLog))
		{
			GLog->Logf(ELogVerbosity::Warning, TEXT("Command not recognized: %s"), *Command);
		}
	}
}

bool UEngine::Exec(UWorld*, const TCHAR*, FOutputDevice&)
{
	return false;
}
