#include "FolderWatch.h"

#include "HAL/PlatformFileManager.h"
#include "HAL/PlatformTime.h"

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

namespace
{
constexpr uint32 Changes =
	IN_MODIFY | IN_ATTRIB | IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_DELETE_SELF | IN_MOVE | IN_MOVE_SELF | IN_UNMOUNT;
/** In seconds. */
constexpr double MaxAge = 1.0;
}

FFolderWatch::FFolderWatch()
	: Queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
}

FFolderWatch::~FFolderWatch()
{
	if (Queue >= 0)
	{
		::close(Queue);
	}
}

void FFolderWatch::Reset()
{
	for (const int Watch : Watches)
	{
		// One whose folder is gone has gone with it.
		::inotify_rm_watch(Queue, Watch);
	}
	Watches.Reset();
	Missing.Reset();
	std::array<uint8, 4096> Told;
	while (Queue >= 0 && ::read(Queue, Told.data(), Told.size()) > 0)
	{
	}
	bChanged = Queue < 0;
	ResetAt = FPlatformTime::Seconds();
}

void FFolderWatch::Add(const FString& Folder)
{
	const int Watch = Queue < 0 ? -1 : ::inotify_add_watch(Queue, TCHAR_TO_UTF8(*Folder), Changes);
	if (Watch >= 0)
	{
		Watches.Add(Watch);
	}
	else if (!FPlatformFileManager::Get().GetPlatformFile().DirectoryExists(*Folder))
	{
		Missing.Add(Folder);
	}
	else
	{
		bChanged = true;
	}
}

bool FFolderWatch::MayHaveChanged()
{
	std::array<uint8, 4096> Told;
	bChanged = bChanged || FPlatformTime::Seconds() - ResetAt > MaxAge || ::read(Queue, Told.data(), Told.size()) > 0 ||
		Missing.ContainsByPredicate(
			[](const FString& Folder) { return FPlatformFileManager::Get().GetPlatformFile().DirectoryExists(*Folder); });
	return bChanged;
}
