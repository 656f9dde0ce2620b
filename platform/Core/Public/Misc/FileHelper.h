#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HAL/FileManager.h"

/** Whole files as text, lines or bytes. The file manager parameter is the engine's; there is one file manager. Any thread. */
struct CORE_API FFileHelper
{
	enum class EEncodingOptions : uint8
	{
		/** Bytes for ASCII, UTF-8 without a mark for all other text. */
		AutoDetect,
		/** Latin-1; what it lacks becomes "?". */
		ForceAnsi,
		/** UTF-16, little endian, with a byte order mark. */
		ForceUnicode,
		/** UTF-8 with a byte order mark. */
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename);
	/** Decodes by the byte order mark, which is not kept; without one as UTF-8, and as Latin-1 what is no valid UTF-8. */
	static bool LoadFileToString(FString& Result, const TCHAR* Filename);
	/** The lines without their ends ("\r\n", "\n" or "\r"); an end behind the last line starts no further one. */
	static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);

	// The writers make missing directories, write through to the end of the file, and answer false unless every byte was written.
	// WriteFlags are of EFileWrite. A byte order mark is written only at the start of a file, and none for an empty text.
	static bool SaveArrayToFile(
		const TArray<uint8>& Array, const TCHAR* Filename, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
	static bool SaveStringToFile(const FString& String, const TCHAR* Filename,
		EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(),
		uint32 WriteFlags = 0);
	/** Each line followed by the line terminator. */
	static bool SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename,
		EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(),
		uint32 WriteFlags = 0);
};
