#pragma once

#include "Misc/DateTime.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"

/** What a file system knows of a file or directory. */
struct FFileStatData
{
	/** UTC. */
	FDateTime ModificationTime = FDateTime::MinValue();
	/** In bytes; -1 for a directory. */
	int64 FileSize = -1;
	bool bIsDirectory = false;
	bool bIsReadOnly = false;
	/** False when there is no such file or directory. */
	bool bIsValid = false;
};

/** An open file. Closed when it goes. */
class CORE_API IFileHandle
{
public:
	/** Takes over an open descriptor. */
	IFileHandle(int InDescriptor, FString InPath)
		: Descriptor(InDescriptor)
		, Path(MoveTemp(InPath))
	{
	}
	~IFileHandle();
	UE_NONCOPYABLE(IFileHandle)

	/** In bytes; -1 when it can't be told. */
	int64 Size() const { return GetStatData().FileSize; }
	FFileStatData GetStatData() const;
	/** False unless all the bytes could be read. */
	[[nodiscard]] bool Read(uint8* Destination, int64 BytesToRead);
	/** False unless all the bytes were written; some of them may be in the file then. */
	[[nodiscard]] bool Write(const uint8* Source, int64 BytesToWrite);
	/** What is written goes to the disk itself. */
	[[nodiscard]] bool Flush();

private:
	int Descriptor;
	FString Path;
};

/**
 * The file system. Relative paths are relative to FPlatformProcess::BaseDir, "\" counts as "/". A file is a regular file here, or a
 * symbolic link to one; a link to a directory counts as a directory. A file on which nobody has the permission to write is read-only:
 * nothing writes or deletes it, whoever the user is. Operations that change something answer whether they did. Any thread.
 */
class CORE_API IPlatformFile
{
public:
	using FDirectoryVisitorFunc = TFunctionRef<bool(const TCHAR* FilenameOrDirectory, bool bIsDirectory)>;

	bool FileExists(const TCHAR* Filename);
	/** In bytes; -1 when there is no such file. */
	int64 FileSize(const TCHAR* Filename);
	bool DeleteFile(const TCHAR* Filename);
	bool IsReadOnly(const TCHAR* Filename);
	bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue);
	/** Replaces a file at To. Within one file system it happens at once or not at all. */
	bool MoveFile(const TCHAR* To, const TCHAR* From);
	/** With the permissions of From; replaces a file at To that is not read-only. */
	bool CopyFile(const TCHAR* To, const TCHAR* From);
	/** UTC; FDateTime::MinValue when there is no such file or directory. */
	FDateTime GetTimeStamp(const TCHAR* Filename);
	void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime);
	/** All of it in one question. */
	FFileStatData GetStatData(const TCHAR* FilenameOrDirectory);

	/** @return null when the file can't be opened */
	TUniquePtr<IFileHandle> OpenRead(const TCHAR* Filename);
	/** Makes the file when it is not there, but no directory. @return null when the file can't be opened */
	TUniquePtr<IFileHandle> OpenWrite(const TCHAR* Filename, bool bAppend = false);

	bool DirectoryExists(const TCHAR* Directory);
	/** True also when the directory is there already. */
	bool CreateDirectory(const TCHAR* Directory);
	bool CreateDirectoryTree(const TCHAR* Directory);
	/** The directory must be empty. */
	bool DeleteDirectory(const TCHAR* Directory);
	/** With all that is in it; links are removed, never followed. */
	bool DeleteDirectoryRecursively(const TCHAR* Directory);
	/** Visits the files and then the directories of one directory, in name order, by full path, until Visitor returns false. */
	bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor);
	/** The full paths of the files of one directory whose names end with FileExtension; of all when it is null. Empties FoundFiles. */
	void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension);
};
