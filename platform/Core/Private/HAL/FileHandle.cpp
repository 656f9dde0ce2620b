#include "GenericPlatform/GenericPlatformFile.h"

#include "CoreHost/FileFaults.h"
#include "HAL/FileStatus.h"

#include <cerrno>
#include <unistd.h>

IFileHandle::~IFileHandle()
{
	::close(Descriptor);
}

FFileStatData IFileHandle::GetStatData() const
{
	return FFileStatus(Descriptor).ToStatData();
}

bool IFileHandle::Read(uint8* Destination, int64 BytesToRead)
{
	while (BytesToRead > 0)
	{
		const ssize_t Count = ::read(Descriptor, Destination, static_cast<SIZE_T>(BytesToRead));
		if (Count == 0 || (Count < 0 && errno != EINTR))
		{
			return false;
		}
		Destination += Count > 0 ? Count : 0;
		BytesToRead -= Count > 0 ? Count : 0;
	}
	return true;
}

bool IFileHandle::Write(const uint8* Source, int64 BytesToWrite)
{
	const bool bAllowed = FFileFaults::Allows(EFileOperation::Write, Path);
	int64 Left = bAllowed ? BytesToWrite : BytesToWrite / 2;
	while (Left > 0)
	{
		const ssize_t Count = ::write(Descriptor, Source, static_cast<SIZE_T>(Left));
		if (Count < 0 && errno != EINTR)
		{
			return false;
		}
		Source += Count > 0 ? Count : 0;
		Left -= Count > 0 ? Count : 0;
	}
	return bAllowed;
}

bool IFileHandle::Flush()
{
	return ::fsync(Descriptor) == 0;
}
