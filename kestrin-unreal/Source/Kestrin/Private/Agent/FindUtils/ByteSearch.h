#pragma once

#include "CoreMinimal.h"

/**
 * A search for bytes in bytes. What it does in every place is to compare two bytes, the pattern's rarest, in a loop that compilers
 * turn into vector instructions; the rest is compared where both fit. Any thread.
 */
class FByteSearch
{
public:
	/**
	 * @param InPattern at least one byte
	 * @param bIgnoreCase its ASCII letters stand for those of the other case, too
	 */
	FByteSearch(const TArray<uint8>& InPattern, bool bIgnoreCase);

	int32 GetLength() const { return Pattern.Num(); }
	bool IsIn(const uint8* Data, int64 Count) const;

	static bool HasNonAscii(const uint8* Data, int64 Count);

private:
	/** A byte of the pattern: a byte of the data fits when the two are equal after the bits of Mask have been set in it. */
	struct FByte
	{
		uint8 Value;
		uint8 Mask;
	};

	bool IsAt(const uint8* Data) const;
	bool IsAtOneOf(const uint8* Data, int64 Places) const;

	TArray<FByte> Pattern;
	/** Where in the pattern the two bytes are that are looked at first; the same place twice in a pattern of one byte. */
	int32 First = 0;
	int32 Second = 0;
};
