#include "GenericPlatform/GenericPlatformFile.h"

#include "CoreHost/FileFaults.h"
#include "HAL/FileStatus.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/Paths.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
bool DeleteNativeFile(const std::string& Path)
{
	return ::unlink(Path.c_str()) == 0;
}

bool CopyNativeFile(const std::string& To, const std::string& From)
{
	std::error_code Error;
	const bool bNew = !std::filesystem::exists(To, Error);
	const bool bCopied = std::filesystem::copy_file(From, To, std::filesystem::copy_options::overwrite_existing, Error);
	if (!bCopied && bNew)
	{
		DeleteNativeFile(To);
	}
	return bCopied;
}
}

FPlatformFileManager& FPlatformFileManager::Get()
{
	static FPlatformFileManager Manager;
	return Manager;
}

bool IPlatformFile::FileExists(const TCHAR* Filename)
{
	return FFileStatus(Filename).IsFile();
}

int64 IPlatformFile::FileSize(const TCHAR* Filename)
{
	const FFileStatus Status(Filename);
	return Status.IsFile() ? Status.Stat.st_size : -1;
}

bool IPlatformFile::DeleteFile(const TCHAR* Filename)
{
	if (!FFileFaults::Allows(EFileOperation::DeleteFile, Filename) || IsReadOnly(Filename))
	{
		return false;
	}
	return DeleteNativeFile(NativePath(Filename));
}

bool IPlatformFile::IsReadOnly(const TCHAR* Filename)
{
	return FFileStatus(Filename).IsReadOnlyFile();
}

bool IPlatformFile::SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue)
{
	const FFileStatus Status(Filename);
	if (!FFileFaults::Allows(EFileOperation::SetReadOnly, Filename) || !Status.IsFile())
	{
		return false;
	}
	const mode_t Mode = Status.Stat.st_mode & 07777;
	return ::chmod(NativePath(Filename).c_str(), bNewReadOnlyValue ? Mode & ~FFileStatus::AnyWrite : Mode | S_IWUSR) == 0;
}

bool IPlatformFile::MoveFile(const TCHAR* To, const TCHAR* From)
{
	if (!FFileFaults::Allows(EFileOperation::MoveFile, To))
	{
		return false;
	}
	const std::string NativeTo = NativePath(To);
	const std::string NativeFrom = NativePath(From);
	if (::rename(NativeFrom.c_str(), NativeTo.c_str()) == 0)
	{
		return true;
	}
	return errno == EXDEV && CopyNativeFile(NativeTo, NativeFrom) && DeleteNativeFile(NativeFrom);
}

bool IPlatformFile::CopyFile(const TCHAR* To, const TCHAR* From)
{
	if (!FFileFaults::Allows(EFileOperation::CopyFile, To) || IsReadOnly(To))
	{
		return false;
	}
	return CopyNativeFile(NativePath(To), NativePath(From));
}

FDateTime IPlatformFile::GetTimeStamp(const TCHAR* Filename)
{
	return GetStatData(Filename).ModificationTime;
}

FFileStatData IPlatformFile::GetStatData(const TCHAR* FilenameOrDirectory)
{
	return FFileStatus(FilenameOrDirectory).ToStatData();
}

void IPlatformFile::SetTimeStamp(const TCHAR* Filename, FDateTime DateTime)
{
	const int64 Seconds = DateTime.ToUnixTimestamp();
	const int64 Rest = (DateTime - FDateTime::FromUnixTimestamp(Seconds)).GetTicks();
	const timespec Times[2] = { { 0, UTIME_OMIT }, { Seconds, Rest * 100 } };
	// The engine's signature has no way to tell of a failure.
	[[maybe_unused]] const int Result = ::utimensat(AT_FDCWD, NativePath(Filename).c_str(), Times, 0);
}

TUniquePtr<IFileHandle> IPlatformFile::OpenRead(const TCHAR* Filename)
{
	if (!FFileFaults::Allows(EFileOperation::OpenRead, Filename))
	{
		return nullptr;
	}
	// Anything but a regular file may block for ever, already when it is opened.
	const int Descriptor = ::open(NativePath(Filename).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
	if (Descriptor < 0)
	{
		return nullptr;
	}
	TUniquePtr<IFileHandle> Handle = MakeUnique<IFileHandle>(Descriptor, FString(Filename));
	return FFileStatus(Descriptor).IsFile() ? MoveTemp(Handle) : nullptr;
}

TUniquePtr<IFileHandle> IPlatformFile::OpenWrite(const TCHAR* Filename, bool bAppend)
{
	if (!FFileFaults::Allows(EFileOperation::OpenWrite, Filename))
	{
		return nullptr;
	}
	const FFileStatus Status(Filename);
	if (Status.bFound && (!Status.IsFile() || Status.IsReadOnlyFile()))
	{
		return nullptr;
	}
	const int Flags = O_WRONLY | O_CREAT | O_CLOEXEC | (bAppend ? O_APPEND : O_TRUNC);
	const int Descriptor = ::open(NativePath(Filename).c_str(), Flags, 0666);
	return Descriptor < 0 ? nullptr : MakeUnique<IFileHandle>(Descriptor, FString(Filename));
}

bool IPlatformFile::DirectoryExists(const TCHAR* Directory)
{
	return FFileStatus(Directory).IsDirectory();
}

bool IPlatformFile::CreateDirectory(const TCHAR* Directory)
{
	if (DirectoryExists(Directory))
	{
		return true;
	}
	return FFileFaults::Allows(EFileOperation::CreateDirectory, Directory) && ::mkdir(NativePath(Directory).c_str(), 0777) == 0;
}

bool IPlatformFile::CreateDirectoryTree(const TCHAR* Directory)
{
	FString Path(Directory);
	FPaths::NormalizeDirectoryName(Path);
	if (Path.IsEmpty() || DirectoryExists(*Path))
	{
		return true;
	}
	return CreateDirectoryTree(*FPaths::GetPath(Path)) && CreateDirectory(*Path);
}

bool IPlatformFile::DeleteDirectory(const TCHAR* Directory)
{
	return FFileFaults::Allows(EFileOperation::DeleteDirectory, Directory) && ::rmdir(NativePath(Directory).c_str()) == 0;
}

bool IPlatformFile::DeleteDirectoryRecursively(const TCHAR* Directory)
{
	if (!FFileFaults::Allows(EFileOperation::DeleteDirectory, Directory) || !DirectoryExists(Directory))
	{
		return false;
	}
	std::error_code Error;
	std::filesystem::remove_all(NativePath(Directory), Error);
	return !Error;
}
