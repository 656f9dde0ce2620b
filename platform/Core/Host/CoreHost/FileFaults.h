#pragma once

#include "Containers/UnrealString.h"
#include "Templates/Function.h"

enum class EFileOperation : uint8
{
	OpenRead,
	OpenWrite,
	Write,
	DeleteFile,
	MoveFile,
	CopyFile,
	SetReadOnly,
	CreateDirectory,
	DeleteDirectory
};

/** Lets a test act in the middle of what a program does with files. */
struct CORE_API FFileFaults
{
	/** Called before each operation with the path that it works on (of two, the target); false makes the operation fail. */
	using FHook = TFunction<bool(EFileOperation Operation, const FString& Path)>;

	/**
	 * One hook at a time; an empty one ends it. A Write that is made to fail leaves the first half of its bytes in the file, as a full
	 * disk does. Set it while no other thread works with files.
	 */
	static void SetHook(FHook Hook);

	/** What the file system asks. */
	static bool Allows(EFileOperation Operation, const FString& Path);
};
