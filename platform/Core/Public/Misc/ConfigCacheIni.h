#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include "Templates/UniquePtr.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogConfig, Log, All);

/**
 * An ini file in memory. Sections and keys are compared ignoring case.
 *
 * "[Section]" begins a section, ";" a comment. "Key=Value" replaces the key's values, "+Key=Value" adds one unless it is there,
 * ".Key=Value" adds one in any case, "-Key=Value" takes one away, "!Key=" takes all away. A value in double quotes is unquoted.
 * A line that is none of these is passed over with a warning. Lines do not continue on the next one. Game thread.
 */
class CORE_API FConfigFile
{
public:
	/** Replaces what is in memory by the file; by nothing when it can't be read. */
	void Read(const FString& Filename);
	/** Applies a file's lines to what is in memory. @return false when it can't be read */
	bool Combine(const FString& Filename);
	/** The same for a text. @param Filename what warnings call it */
	void CombineFromBuffer(const FString& Buffer, const FString& Filename);

	/** @return false, with Value as it was, when the key has no value; the last value of a key that has several */
	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const;
	/** Empties Value first. @return how many values */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const;
	/** The key's values: none when the file clears them. Null when it does not name the key. */
	const TArray<FString>* FindValues(const FString& Section, const FString& Key) const;

	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value);
	/** Keeps an empty array apart from a key that is not there. */
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value);
	/**
	 * Puts what was set since the file was read into the file's text; all the rest of it stays as it is, to the byte. It is written
	 * beside the file first and takes its place when it is whole.
	 * @return false, with a line in the log and the old file in place, when that fails
	 */
	bool Write(const FString& Filename);

private:
	struct FKey
	{
		TArray<FString> Values;
		bool bArray = false;
		bool bChanged = false;
	};
	using FSection = TMap<FString, FKey>;

	void Set(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, bool bArray);

	TMap<FString, FSection> Sections;
};

/** The ini files in use, each read once. Game thread. */
class CORE_API FConfigCacheIni
{
public:
	/** Reads the file on first use; one that is not there is empty. The pointer is good until the file is unloaded. */
	FConfigFile* Find(const FString& Filename);
	/** Forgets the file, so that the next use reads it again. */
	void UnloadFile(const FString& Filename) { Files.Remove(Filename); }
	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value, const FString& Filename);

private:
	TMap<FString, TUniquePtr<FConfigFile>> Files;
};

/** Never null. */
extern CORE_API FConfigCacheIni* GConfig;
