#include "CoreHost/FileFaults.h"

#include <atomic>

namespace
{
std::atomic<bool> bHasHook = false;
FFileFaults::FHook CurrentHook;
}

void FFileFaults::SetHook(FHook Hook)
{
	CurrentHook = MoveTemp(Hook);
	bHasHook = CurrentHook.IsSet();
}

bool FFileFaults::Allows(EFileOperation Operation, const FString& Path)
{
	return !bHasHook || CurrentHook(Operation, Path);
}
