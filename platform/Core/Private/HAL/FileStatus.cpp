#include "HAL/FileStatus.h"

#include "HAL/NativePath.h"

FFileStatus::FFileStatus(const TCHAR* Path)
	: bFound(::stat(NativePath(Path).c_str(), &Stat) == 0)
{
}

FFileStatus::FFileStatus(int Descriptor)
	: bFound(::fstat(Descriptor, &Stat) == 0)
{
}

FFileStatData FFileStatus::ToStatData() const
{
	if (!bFound)
	{
		return FFileStatData();
	}
	const timespec& Time = Stat.st_mtim;
	return { .ModificationTime = FDateTime::FromUnixTimestamp(Time.tv_sec) + FTimespan(Time.tv_nsec / 100),
		.FileSize = IsDirectory() ? -1 : static_cast<int64>(Stat.st_size),
		.bIsDirectory = IsDirectory(),
		.bIsReadOnly = IsReadOnlyFile(),
		.bIsValid = true };
}
