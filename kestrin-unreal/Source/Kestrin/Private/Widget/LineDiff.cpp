#include "LineDiff.h"
#include "CommonSubsequence.h"

#include "Algo/Reverse.h"

// The walk begins at the ends of both texts. The lines at the end that are alike it takes at once; for those at the beginning that are
// alike the table is known without being made. In between, lines that the other text has nowhere cannot be common: they are no part of
// the table, which is asked for the others alone.

namespace
{
TArray<FString> SplitLines(const FString& Text)
{
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	return Lines;
}

/** Numbers for lines; those that differ in nothing but case have the same, since keys of maps are compared so. */
class FLineNumbers
{
public:
	TArray<int32> Get(const TArray<FString>& Lines)
	{
		TArray<int32> Result;
		Result.Reserve(Lines.Num());
		for (const FString& Line : Lines)
		{
			// From 1, so that a new line is told by its 0.
			int32& Number = Numbers.FindOrAdd(Line);
			Number = Number ? Number : Numbers.Num();
			Result.Add(Number - 1);
		}
		return Result;
	}
	int32 Num() const { return Numbers.Num(); }

private:
	TMap<FString, int32> Numbers;
};

/** One text's lines between the beginning and the end that both have, without those that the other has not there. */
struct FKeptLines
{
	/** The lines that are kept, as their numbers. */
	TArray<int32> Symbols;
	/** For each number of lines from the beginning, how many of them are kept. */
	TArray<int32> Counts;

	FKeptLines(const TArray<int32>& Lines, int32 First, int32 End, const TArray<int32>& Others, int32 OthersEnd, int32 NumSymbols)
	{
		TArray<bool> IsThere;
		IsThere.SetNum(NumSymbols);
		for (int32 Index = First; Index < OthersEnd; ++Index)
		{
			IsThere[Others[Index]] = true;
		}
		Counts.SetNum(End + 1);
		for (int32 Index = First; Index < End; ++Index)
		{
			if (IsThere[Lines[Index]])
			{
				Symbols.Add(Lines[Index]);
			}
			Counts[Index + 1] = Symbols.Num();
		}
	}

	bool IsKept(int32 Count) const { return Counts[Count] != Counts[Count - 1]; }
};

class FLineDiff
{
public:
	FLineDiff(TArray<FString> InOldLines, TArray<FString> InNewLines)
		: OldLines(MoveTemp(InOldLines))
		, NewLines(MoveTemp(InNewLines))
		, Old(Numbers.Get(OldLines))
		, New(Numbers.Get(NewLines))
	{
	}

	TArray<FDiffLine> Compute()
	{
		int32 I = Old.Num();
		int32 J = New.Num();
		Result.Reserve(FMath::Max(I, J));
		while (AreEqual(I, J))
		{
			AddUnchanged(I, J);
		}
		while (Head < FMath::Min(I, J) && Old[Head] == New[Head])
		{
			++Head;
		}
		WalkBetween(I, J);
		WalkHead(I, J);
		Algo::Reverse(Result);
		return MoveTemp(Result);
	}

private:
	/** @param I, J how many lines of the old and of the new text are left */
	void WalkBetween(int32& I, int32& J)
	{
		const FKeptLines Rows(Old, Head, I, New, J, Numbers.Num());
		const FKeptLines Columns(New, Head, J, Old, I, Numbers.Num());
		FCommonSubsequence Table(Rows.Symbols, Columns.Symbols, Numbers.Num());
		while (I > Head && J > Head)
		{
			if (AreEqual(I, J))
			{
				AddUnchanged(I, J);
			}
			else if (!Columns.IsKept(J) || !Table.IsStep(Rows.Counts[I], Columns.Counts[J]))
			{
				AddAdded(J);
			}
			else
			{
				AddRemoved(I);
			}
		}
	}

	/** Where one text has no more lines than both have in common, the length of what is common is that text's. */
	void WalkHead(int32& I, int32& J)
	{
		while (I > 0 || J > 0)
		{
			if (AreEqual(I, J))
			{
				AddUnchanged(I, J);
			}
			else if (J > 0 && (I == 0 || FMath::Min(I, J - 1) >= FMath::Min(I - 1, J)))
			{
				AddAdded(J);
			}
			else
			{
				AddRemoved(I);
			}
		}
	}

	bool AreEqual(int32 I, int32 J) const { return I > 0 && J > 0 && Old[I - 1] == New[J - 1]; }

	void AddUnchanged(int32& I, int32& J)
	{
		Result.Add({ MoveTemp(OldLines[I - 1]), EDiffLineType::Unchanged, I, J });
		--I;
		--J;
	}
	void AddAdded(int32& J)
	{
		Result.Add({ MoveTemp(NewLines[J - 1]), EDiffLineType::Added, 0, J });
		--J;
	}
	void AddRemoved(int32& I)
	{
		Result.Add({ MoveTemp(OldLines[I - 1]), EDiffLineType::Removed, I, 0 });
		--I;
	}

	TArray<FString> OldLines;
	TArray<FString> NewLines;
	FLineNumbers Numbers;
	const TArray<int32> Old;
	const TArray<int32> New;
	/** How many lines at the beginning are alike. */
	int32 Head = 0;
	/** From the last line to the first. */
	TArray<FDiffLine> Result;
};
}

TArray<FDiffLine> ComputeLineDiff(const FString& OldContent, const FString& NewContent)
{
	return FLineDiff(SplitLines(OldContent), SplitLines(NewContent)).Compute();
}
