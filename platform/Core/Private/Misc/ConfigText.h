#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <string>

/**
 * An ini file's text for changing some lines of it, in units that all of the file's bytes come back from: UTF-16 units for such a
 * file, single bytes for any other.
 */
class FConfigText
{
public:
	/** A file that is not there is an empty text. @return false when it is there and can't be read */
	bool Load(const FString& Filename);
	/** Writes beside the file and renames; nothing at all when nothing was changed. */
	bool Save(const FString& Filename) const;

	/** For bytes from elsewhere. */
	void SetBytes(const TArray<uint8>& Bytes);
	TArray<uint8> GetBytes() const;

	/**
	 * Puts Lines where the section has the key now, or else at the section's end, or else into a new section at the end. Each line of
	 * the key goes, whatever its operation.
	 */
	void SetKey(const FString& Section, const FString& Key, const TArray<FString>& Lines);

private:
	enum class EUnits : uint8
	{
		Utf8,
		/** Bytes that are no UTF-8. */
		Latin1,
		Utf16Little,
		Utf16Big,
	};

	/** A line with its end, and what it belongs to. */
	struct FLine
	{
		std::u16string Text;
		std::u16string Section;
		std::u16string Key;
		bool bHeader = false;
	};

	void MakeRoomFor(const FString& Text);
	std::u16string ToUnits(const FString& Text) const;
	void SplitLines(std::u16string_view Text);
	/** The index behind the section's last line that is not empty, or INDEX_NONE. */
	int32 FindSectionEnd(const std::u16string& Section) const;
	void InsertLine(int32 Index, const std::u16string& Text, const std::u16string& Section, const std::u16string& Key);

	EUnits Units = EUnits::Utf8;
	bool bByteOrderMark = false;
	bool bChanged = false;
	std::u16string LineEnd = u"\n";
	TArray<FLine> Lines;
	/** What is behind the last whole unit of a UTF-16 file. */
	std::string OddByte;
};
