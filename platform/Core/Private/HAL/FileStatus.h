#pragma once

#include "GenericPlatform/GenericPlatformFile.h"

#include <sys/stat.h>

/** What the operating system says of a file or directory; nothing when there is none. */
struct FFileStatus
{
	static constexpr mode_t AnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

	/** Links are followed. */
	explicit FFileStatus(const TCHAR* Path);
	explicit FFileStatus(int Descriptor);

	bool IsFile() const { return bFound && S_ISREG(Stat.st_mode); }
	bool IsDirectory() const { return bFound && S_ISDIR(Stat.st_mode); }
	bool IsReadOnlyFile() const { return IsFile() && (Stat.st_mode & AnyWrite) == 0; }
	FFileStatData ToStatData() const;

	struct stat Stat = {};
	bool bFound;
};
