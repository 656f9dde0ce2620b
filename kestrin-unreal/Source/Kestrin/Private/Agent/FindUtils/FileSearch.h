#pragma once

#include "Agent/FindUtils/ByteSearch.h"
#include "CoreMinimal.h"

/**
 * Looks for one text in files, as FString::Find does in the text of a file, ignoring case. A text of ASCII alone is looked for in
 * the files' bytes, piece by piece, so that a file takes no memory; the answer is the same.
 */
class FFileSearch
{
public:
	/** @param InText not empty */
	explicit FFileSearch(const FString& InText);

	/** Whether the text is in the file or in its path. False for a file that can't be read, whatever its path. */
	bool Finds(const FString& File);

private:
	void PrepareBytes();
	bool FindsInBytes(const FString& File);
	bool FindsInText(const FString& File) const;
	bool HasOtherLetter(const uint8* Data, int64 Count) const;

	const FString Text;
	/** Set for a text of ASCII alone. */
	TUniquePtr<FByteSearch> Bytes;
	/** Letters beyond ASCII that are the same as a letter of the text when case is ignored, in UTF-8: U+212A is a kind of "k". */
	TArray<FByteSearch> OtherLetters;

	/** Room for a piece of a file at the start of a page, and before it for the end of the piece before. */
	TArray<uint8> Buffer;
	uint8* Piece = nullptr;
	/** So many bytes of one piece are looked at again with the next: a place may lie across the two. */
	int32 Overlap = 0;
};
