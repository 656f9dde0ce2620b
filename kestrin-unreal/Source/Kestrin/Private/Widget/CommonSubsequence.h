#pragma once

#include "CoreMinimal.h"

/**
 * The table of the lengths of the longest common subsequences of all beginnings of two sequences, as one bit a cell: whether a cell is
 * larger than the one to its left. Rows are made 64 cells at a time (Crochemore, Iliopoulos, Pinzon and Reid, "A fast and practical
 * bit-vector algorithm for the longest common subsequence problem", 2001); only words with a match or a carry are touched, and only in
 * a band around the diagonal that holds the path of fewest edits (Ukkonen, "Algorithms for approximate string matching", 1985). It is
 * read along that path, from the last row to the first: every square-root-th row is kept, and those between two of them are made again
 * when they are reached.
 */
class FCommonSubsequence
{
public:
	/** @param InRows, Columns symbols from 0 to NumSymbols - 1; they must live as long as this does */
	FCommonSubsequence(const TArray<int32>& InRows, const TArray<int32>& Columns, int32 NumSymbols);

	/**
	 * Whether the cell of these numbers, from 1, is larger than the one to its left. Row 0 is all zero.
	 * @param Row never more than at the call before
	 */
	bool IsStep(int32 Row, int32 Column);

private:
	/** Where a symbol stands among the columns: the bits of one word. */
	struct FMatch
	{
		int32 Word = 0;
		uint64 Bits = 0;
	};
	/** What a word was before a row changed it. */
	struct FChange
	{
		int32 Row;
		int32 Word;
		uint64 Bits;
	};
	struct FKeptRow
	{
		TArray<uint64> Words;
		int32 LastWord;
	};

	void FindMatches(const TArray<int32>& Columns, int32 NumSymbols);
	/** Makes the rows to be kept within the band of MaxEdits. @return the length of the longest common subsequence there */
	int64 MakeKeptRows();
	/** From the row before to this one. @return whether the longest common subsequence has grown */
	bool Advance(int32 Row);
	/** The symbol's first match that is not before a word. */
	int32 FindMatch(int32 Symbol, int32 Word) const;
	/** @return the carry */
	bool AddCarry(int32 FirstWord, int32 EndWord, int32 Row);
	void SetWord(int32 Word, uint64 Bits, int32 Row);
	void GoBackTo(int32 Row);

	const TArray<int32>& Rows;
	const int32 NumColumns;
	/** Those of symbol S begin at FirstMatch[S] and end before FirstMatch[S + 1]. */
	TArray<FMatch> Matches;
	TArray<int32> FirstMatch;

	/** The steps of the current row. */
	TArray<uint64> Words;
	int32 CurrentRow = 0;
	/** Behind it there is no step. */
	int32 LastWord = -1;

	/** Only the cells that a path of so many edits can reach are made. */
	int64 MaxEdits = 0;
	const int32 KeptDistance;
	TArray<FKeptRow> KeptRows;
	/** Since the kept row before the current one. */
	TArray<FChange> Changes;
	bool bKeepChanges = false;
};
