#include "CommonSubsequence.h"

namespace
{
/** Most texts differ in few lines; when the band turns out to be too narrow, it becomes so many times wider. */
constexpr int64 FirstMaxEdits = 256;
constexpr int64 Widening = 4;
}

FCommonSubsequence::FCommonSubsequence(const TArray<int32>& InRows, const TArray<int32>& Columns, int32 NumSymbols)
	: Rows(InRows)
	, NumColumns(Columns.Num())
	, KeptDistance(FMath::Max(1, static_cast<int32>(FMath::Sqrt(static_cast<double>(InRows.Num())))))
{
	FindMatches(Columns, NumSymbols);
	// A path of so many edits was found within the band, so that every path of as few lies within it.
	for (MaxEdits = FirstMaxEdits; static_cast<int64>(Rows.Num()) + NumColumns - 2 * MakeKeptRows() > MaxEdits; MaxEdits *= Widening)
	{
	}
	CurrentRow = Rows.Num() + 1;
	bKeepChanges = true;
}

int64 FCommonSubsequence::MakeKeptRows()
{
	int64 Length = 0;
	KeptRows.Reset();
	Words.Reset();
	Words.SetNum((NumColumns + 63) / 64);
	LastWord = INDEX_NONE;
	for (int32 Row = 1; Row <= Rows.Num(); ++Row)
	{
		if ((Row - 1) % KeptDistance == 0)
		{
			KeptRows.Add({ Words, LastWord });
		}
		Length += Advance(Row);
	}
	return Length;
}

void FCommonSubsequence::FindMatches(const TArray<int32>& Columns, int32 NumSymbols)
{
	// Two walks: how many words each symbol has, then which.
	TArray<int32> EndWords;
	EndWords.SetNum(NumSymbols);
	FirstMatch.SetNum(NumSymbols + 1);
	for (int32 Column = 0; Column < Columns.Num(); ++Column)
	{
		const int32 Symbol = Columns[Column];
		const int32 EndWord = Column / 64 + 1;
		FirstMatch[Symbol + 1] += EndWords[Symbol] != EndWord;
		EndWords[Symbol] = EndWord;
	}
	for (int32 Symbol = 0; Symbol < NumSymbols; ++Symbol)
	{
		FirstMatch[Symbol + 1] += FirstMatch[Symbol];
	}
	Matches.SetNum(FirstMatch[NumSymbols]);
	TArray<int32> Ends = FirstMatch;
	for (int32 Column = 0; Column < Columns.Num(); ++Column)
	{
		int32& End = Ends[Columns[Column]];
		if (End == FirstMatch[Columns[Column]] || Matches[End - 1].Word != Column / 64)
		{
			Matches[End++].Word = Column / 64;
		}
		Matches[End - 1].Bits |= uint64(1) << (Column % 64);
	}
}

bool FCommonSubsequence::IsStep(int32 Row, int32 Column)
{
	if (Row == 0)
	{
		return false;
	}
	GoBackTo(Row);
	return (Words[(Column - 1) / 64] >> ((Column - 1) % 64)) & 1;
}

void FCommonSubsequence::GoBackTo(int32 Row)
{
	const int32 Kept = (Row - 1) / KeptDistance;
	if (Kept < KeptRows.Num() - 1 || CurrentRow > Rows.Num())
	{
		// A block is entered from behind: its rows are made again.
		const int32 LastRow = FMath::Min((Kept + 1) * KeptDistance, Rows.Num());
		KeptRows.SetNum(Kept + 1);
		Words = KeptRows[Kept].Words;
		LastWord = KeptRows[Kept].LastWord;
		Changes.Reset();
		for (int32 Next = Kept * KeptDistance + 1; Next <= LastRow; ++Next)
		{
			Advance(Next);
		}
		CurrentRow = LastRow;
	}
	for (; CurrentRow > Row; --CurrentRow)
	{
		for (; !Changes.IsEmpty() && Changes.Last().Row == CurrentRow; Changes.Pop(EAllowShrinking::No))
		{
			Words[Changes.Last().Word] = Changes.Last().Bits;
		}
	}
}

bool FCommonSubsequence::Advance(int32 Row)
{
	// On a path of at most MaxEdits edits, rows and columns of a cell differ by as much as that many edits can bring about.
	const int64 Difference = static_cast<int64>(Rows.Num()) - NumColumns;
	const int64 FirstColumn = FMath::Max<int64>(Row - (MaxEdits + Difference) / 2, 1);
	const int64 LastColumn = FMath::Min<int64>(Row + (MaxEdits - Difference) / 2 + 1, NumColumns);
	const int32 EndWord = LastColumn < FirstColumn ? 0 : static_cast<int32>((LastColumn - 1) / 64 + 1);
	int32 NextWord = static_cast<int32>((FirstColumn - 1) / 64);

	bool bCarry = false;
	const int32 EndMatch = FirstMatch[Rows[Row - 1] + 1];
	for (int32 Index = FindMatch(Rows[Row - 1], NextWord); Index < EndMatch && Matches[Index].Word < EndWord; ++Index)
	{
		const FMatch& Match = Matches[Index];
		bCarry = bCarry && AddCarry(NextWord, Match.Word, Row);
		const uint64 Flat = ~Words[Match.Word];
		const uint64 Sum = Flat + (Flat & Match.Bits);
		const uint64 SumAndCarry = Sum + bCarry;
		bCarry = Sum < Flat || SumAndCarry < Sum;
		SetWord(Match.Word, ~(SumAndCarry | (Flat & ~Match.Bits)), Row);
		NextWord = Match.Word + 1;
	}
	return bCarry && AddCarry(NextWord, EndWord, Row);
}

int32 FCommonSubsequence::FindMatch(int32 Symbol, int32 Word) const
{
	int32 First = FirstMatch[Symbol];
	for (int32 Count = FirstMatch[Symbol + 1] - First; Count > 0;)
	{
		const int32 Half = Count / 2;
		const bool bBefore = Matches[First + Half].Word < Word;
		First = bBefore ? First + Half + 1 : First;
		Count = bBefore ? Count - Half - 1 : Half;
	}
	return First;
}

bool FCommonSubsequence::AddCarry(int32 FirstWord, int32 EndWord, int32 Row)
{
	for (int32 Word = FirstWord; Word < FMath::Min(EndWord, LastWord + 1); ++Word)
	{
		if (Words[Word] != 0)
		{
			// The first step moves to where the carry comes from.
			SetWord(Word, Words[Word] & (Words[Word] - 1), Row);
			return false;
		}
	}
	return true;
}

void FCommonSubsequence::SetWord(int32 Word, uint64 Bits, int32 Row)
{
	if (Words[Word] != Bits)
	{
		if (bKeepChanges)
		{
			Changes.Add({ Row, Word, Words[Word] });
		}
		Words[Word] = Bits;
		LastWord = FMath::Max(LastWord, Word);
	}
}
