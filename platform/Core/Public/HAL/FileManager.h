#pragma once

#include "Misc/DateTime.h"

enum EFileWrite
{
	FILEWRITE_None = 0x00,
	/** Takes the read-only state away first. */
	FILEWRITE_EvenIfReadOnly = 0x04,
	FILEWRITE_Append = 0x08
};

enum ECopyResult : uint32
{
	COPY_OK,
	COPY_Fail
};

/** Files and directories, with the rules of IPlatformFile. Any thread. */
class CORE_API IFileManager
{
public:
	static IFileManager& Get();

	bool FileExists(const TCHAR* Filename);
	bool DirectoryExists(const TCHAR* Directory);
	/** In bytes; -1 when there is no such file. */
	int64 FileSize(const TCHAR* Filename);
	/** UTC; FDateTime::MinValue when there is no such file. */
	FDateTime GetTimeStamp(const TCHAR* Filename);

	/** A file that is not there counts as deleted unless it is required. Logs a failure unless it is to be quiet. */
	bool Delete(const TCHAR* Filename, bool bRequireExists = false, bool bEvenReadOnly = false, bool bQuiet = false);
	/** Makes the directory of Destination when it is missing. */
	bool Move(const TCHAR* Destination, const TCHAR* Source, bool bReplace = true, bool bEvenIfReadOnly = false);
	/** Makes the directory of Destination when it is missing. @return an ECopyResult */
	uint32 Copy(const TCHAR* Destination, const TCHAR* Source, bool bReplace = true, bool bEvenIfReadOnly = false);
	/** @param bTree also make the directories above */
	bool MakeDirectory(const TCHAR* Path, bool bTree = false);
	/** @param bTree with all that is in it */
	bool DeleteDirectory(const TCHAR* Path, bool bRequireExists = false, bool bTree = false);

	/**
	 * Adds the names, without paths, of what is in one directory and fits a pattern: in name order, files before directories.
	 * @param Filename the directory, "/" and a pattern with "*" and "?"; "*" and "*.*" fit every name
	 */
	void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool bFiles, bool bDirectories);
	/** The same for StartDirectory and all below it, with full paths; what a directory holds comes before what lies below it. */
	void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles, bool bDirectories,
		bool bClearFileNames = true);
};
