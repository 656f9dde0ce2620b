#pragma once

#include "Misc/OutputDeviceError.h"
#include "UObject/Package.h"

enum ESaveFlags : uint32
{
	SAVE_None = 0x0,
	/** Failures are logged in any case, and never end the process. */
	SAVE_NoError = 0x1,
};

/** How a package is saved. */
struct FSavePackageArgs
{
	/** What has one of these flags is saved, with what it refers to in the package, beside the asset. */
	EObjectFlags TopLevelFlags = RF_NoFlags;
	uint32 SaveFlags = SAVE_None;
	// The file's format has one byte order and no limit of its own for names; errors go to the log.
	FOutputDevice* Error = GError;
	bool bForceByteSwapping = false;
	bool bWarnOfLongFilename = true;
};

enum class ESavePackageResult
{
	Success,
	Canceled,
	Error,
};

struct FSavePackageResultStruct
{
	FSavePackageResultStruct(ESavePackageResult InResult, int64 InTotalFileSize = 0)
		: Result(InResult)
		, TotalFileSize(InTotalFileSize)
	{
	}
	bool operator==(const FSavePackageResultStruct& Other) const { return Result == Other.Result; }
	bool IsSuccessful() const { return Result == ESavePackageResult::Success; }

	ESavePackageResult Result;
	int64 TotalFileSize;
};
