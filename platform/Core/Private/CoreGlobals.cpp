#include "CoreGlobals.h"

#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

#include <cstdlib>
#include <thread>

bool GIsEditor = true;
bool GIsRequestingExit = false;

DEFINE_LOG_CATEGORY_STATIC(LogCore, Log, All);

void RequestEngineExit(const TCHAR* Reason)
{
	UE_LOG(LogCore, Log, TEXT("The editor is asked to close: %s"), Reason);
	GIsRequestingExit = true;
}

bool IsInGameThread()
{
	static const std::thread::id GameThread = std::this_thread::get_id();
	return std::this_thread::get_id() == GameThread;
}

namespace
{
/** Core is loaded by the program's first thread. */
[[maybe_unused]] const bool bGameThreadNoted = IsInGameThread();

FString DescribeFailure(const ANSICHAR* Expression, const ANSICHAR* File, int Line, const TCHAR* Message)
{
	return FString::Printf(TEXT("%hs [%hs:%d] %s"), Expression, File, Line, Message);
}
}

void FDebug::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int Line, const TCHAR* Message)
{
	UE_LOG(LogCore, Error, TEXT("Assertion failed: %s"), *DescribeFailure(Expression, File, Line, Message));
	std::abort();
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int Line, const TCHAR* Message)
{
	UE_LOG(LogCore, Error, TEXT("Ensure condition failed: %s"), *DescribeFailure(Expression, File, Line, Message));
	return false;
}
