#include "Agent/CompilationManager.h"
#include "Misc/OutputDeviceRedirector.h"

// What compiles log.

TSharedPtr<FCompilationLogOutputDevice> FCompilationManager::LogOutputDevice;

FCompilationLogOutputDevice::FCompilationLogOutputDevice()
{
	GetGlobalLogSingleton()->AddOutputDevice(this);
}

FCompilationLogOutputDevice::~FCompilationLogOutputDevice()
{
	GetGlobalLogSingleton()->RemoveOutputDevice(this);
}

void FCompilationLogOutputDevice::Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	static const FName Categories[] = { TEXT("LogCompile"), TEXT("LogLiveCoding") };
	if (Category == Categories[0] || Category == Categories[1])
	{
		CapturedLogs.Add(FString::Printf(TEXT("[%s] %s"), *Category.ToString(), Message));
	}
}

void FCompilationManager::CaptureCompilationLogs()
{
	if (!LogOutputDevice.IsValid())
	{
		LogOutputDevice = MakeShared<FCompilationLogOutputDevice>();
	}
	LogOutputDevice->CapturedLogs.Empty();
}

const TArray<FString>& FCompilationManager::GetCompilationLogs()
{
	static const TArray<FString> None;
	return LogOutputDevice.IsValid() ? LogOutputDevice->CapturedLogs : None;
}

TArray<FString> FCompilationManager::FilterCompilationErrors(const FString& Filter)
{
	return GetCompilationLogs().FilterByPredicate([&Filter](const FString& Line) { return Line.Contains(Filter); });
}
