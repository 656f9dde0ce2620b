#include "HAL/FileManager.h"

#include "HAL/PlatformFileManager.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogFileManager, Log, All);

namespace
{
IPlatformFile& Files()
{
	return FPlatformFileManager::Get().GetPlatformFile();
}

/** Clears the way for a file that is to be moved or copied; false when another is in the way. */
bool PrepareDestination(const TCHAR* Destination, bool bReplace, bool bEvenIfReadOnly)
{
	if (!Files().FileExists(Destination))
	{
		return Files().CreateDirectoryTree(*FPaths::GetPath(Destination));
	}
	if (bReplace && bEvenIfReadOnly && Files().IsReadOnly(Destination))
	{
		return Files().SetReadOnly(Destination, false);
	}
	return bReplace && !Files().IsReadOnly(Destination);
}
}

IFileManager& IFileManager::Get()
{
	static IFileManager Manager;
	return Manager;
}

bool IFileManager::FileExists(const TCHAR* Filename)
{
	return Files().FileExists(Filename);
}

bool IFileManager::DirectoryExists(const TCHAR* Directory)
{
	return Files().DirectoryExists(Directory);
}

int64 IFileManager::FileSize(const TCHAR* Filename)
{
	return Files().FileSize(Filename);
}

FDateTime IFileManager::GetTimeStamp(const TCHAR* Filename)
{
	return Files().GetTimeStamp(Filename);
}

bool IFileManager::Delete(const TCHAR* Filename, bool bRequireExists, bool bEvenReadOnly, bool bQuiet)
{
	if (!Files().FileExists(Filename) && !bRequireExists)
	{
		return true;
	}
	const bool bWritable = !bEvenReadOnly || !Files().IsReadOnly(Filename) || Files().SetReadOnly(Filename, false);
	const bool bDeleted = bWritable && Files().DeleteFile(Filename);
	if (!bDeleted && !bQuiet)
	{
		UE_LOG(LogFileManager, Warning, TEXT("Error deleting file: %s"), Filename);
	}
	return bDeleted;
}

bool IFileManager::Move(const TCHAR* Destination, const TCHAR* Source, bool bReplace, bool bEvenIfReadOnly)
{
	return PrepareDestination(Destination, bReplace, bEvenIfReadOnly) && Files().MoveFile(Destination, Source);
}

uint32 IFileManager::Copy(const TCHAR* Destination, const TCHAR* Source, bool bReplace, bool bEvenIfReadOnly)
{
	const bool bCopied = PrepareDestination(Destination, bReplace, bEvenIfReadOnly) && Files().CopyFile(Destination, Source);
	return bCopied ? COPY_OK : COPY_Fail;
}

bool IFileManager::MakeDirectory(const TCHAR* Path, bool bTree)
{
	return bTree ? Files().CreateDirectoryTree(Path) : Files().CreateDirectory(Path);
}

bool IFileManager::DeleteDirectory(const TCHAR* Path, bool bRequireExists, bool bTree)
{
	if (!Files().DirectoryExists(Path))
	{
		return !bRequireExists;
	}
	return bTree ? Files().DeleteDirectoryRecursively(Path) : Files().DeleteDirectory(Path);
}
