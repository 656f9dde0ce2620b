#include "Support/TestProject.h"
#include "Widget/LineDiff.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{
/** As "=1,1 a", "+0,2 b", "-3,0 c" and so on. */
std::string ToText(const TArray<FDiffLine>& Lines)
{
	std::string Text;
	for (const FDiffLine& Line : Lines)
	{
		Text += "=+-"[static_cast<int>(Line.Type)] + std::to_string(Line.OldLineNumber) + "," + std::to_string(Line.NewLineNumber) + " " +
			ToUtf8(Line.Text) + "\n";
	}
	return Text;
}

std::string Diff(const TCHAR* Old, const TCHAR* New)
{
	return ToText(ComputeLineDiff(Old, New));
}

/** The walk through the whole table. */
TArray<FDiffLine> WalkTable(const FString& OldContent, const FString& NewContent)
{
	TArray<FString> Old;
	TArray<FString> New;
	OldContent.ParseIntoArrayLines(Old, false);
	NewContent.ParseIntoArrayLines(New, false);
	const auto AreEqual = [&](int32 I, int32 J) { return Old[I - 1].Equals(New[J - 1], ESearchCase::IgnoreCase); };
	std::vector<std::vector<int32>> Table(Old.Num() + 1, std::vector<int32>(New.Num() + 1));
	for (int32 I = 1; I <= Old.Num(); ++I)
	{
		for (int32 J = 1; J <= New.Num(); ++J)
		{
			Table[I][J] = AreEqual(I, J) ? Table[I - 1][J - 1] + 1 : std::max(Table[I - 1][J], Table[I][J - 1]);
		}
	}
	TArray<FDiffLine> Lines;
	int32 I = Old.Num();
	int32 J = New.Num();
	while (I > 0 || J > 0)
	{
		if (I > 0 && J > 0 && AreEqual(I, J))
		{
			Lines.Insert({ Old[I - 1], EDiffLineType::Unchanged, I, J }, 0);
			--I;
			--J;
		}
		else if (J > 0 && (I == 0 || Table[I][J - 1] >= Table[I - 1][J]))
		{
			Lines.Insert({ New[J - 1], EDiffLineType::Added, 0, J }, 0);
			--J;
		}
		else
		{
			Lines.Insert({ Old[I - 1], EDiffLineType::Removed, I, 0 }, 0);
			--I;
		}
	}
	return Lines;
}

class FTextMaker
{
public:
	int32 Number(int32 Count) { return static_cast<int32>(Random() % static_cast<uint32>(Count)); }

	/** Of few different lines, in any case of letters, empty ones among them. */
	FString Text(int32 MaxLines, int32 NumDifferent)
	{
		FString Result;
		for (int32 Count = Number(MaxLines + 1); Count > 0; --Count)
		{
			const int32 Which = Number(NumDifferent);
			Result += Which == 0 ? FString() : FString::Printf(Number(2) ? TEXT("Line%d") : TEXT("lINE%d"), Which);
			Result += Count > 1 || Number(2) ? TEXT("\n") : TEXT("");
		}
		return Result;
	}

	/** With some lines removed, added and moved. */
	FString Edit(const FString& Text, int32 Edits)
	{
		TArray<FString> Lines;
		Text.ParseIntoArrayLines(Lines, false);
		for (; Edits > 0 && !Lines.IsEmpty(); --Edits)
		{
			const FString Line = Lines[Number(Lines.Num())];
			if (Number(2))
			{
				Lines.RemoveAt(Number(Lines.Num()));
			}
			if (Number(2))
			{
				Lines.Insert(Number(2) ? Line : FString::Printf(TEXT("new %d"), Edits), Number(Lines.Num() + 1));
			}
		}
		return FString::Join(Lines, TEXT("\n"));
	}

private:
	std::mt19937 Random{ 7 };
};
}

TEST(LineDiff, RemovedLinesStandAheadOfThoseThatReplaceThem)
{
	const struct
	{
		const TCHAR* Old;
		const TCHAR* New;
		const char* Lines;
	} Cases[] = {
		{ TEXT(""), TEXT(""), "" },
		{ TEXT(""), TEXT("a\nb"), "+0,1 a\n+0,2 b\n" },
		{ TEXT("a\n\nb"), TEXT(""), "-1,0 a\n-2,0 \n-3,0 b\n" },
		{ TEXT("a\nb\nc"), TEXT("a\nx\nc"), "=1,1 a\n-2,0 b\n+0,2 x\n=3,3 c\n" },
		{ TEXT("One\r\nTwo"), TEXT("oNE\nTWO"), "=1,1 One\n=2,2 Two\n" },
		{ TEXT("a\nb"), TEXT("b\na"), "-1,0 a\n=2,1 b\n+0,2 a\n" },
		// The beginning that both have is not simply kept.
		{ TEXT("x"), TEXT("x\ny\nx\nz"), "+0,1 x\n+0,2 y\n=1,3 x\n+0,4 z\n" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Diff(Case.Old, Case.New), Case.Lines);
		EXPECT_EQ(ToText(WalkTable(Case.Old, Case.New)), Case.Lines);
	}
}

TEST(LineDiff, IsTheWalkThroughTheWholeTable)
{
	FTextMaker Make;
	for (int32 Round = 0; Round < 20000; ++Round)
	{
		const int32 NumDifferent = 1 + Make.Number(6);
		const FString Old = Make.Text(12, NumDifferent);
		const FString New = Make.Number(2) ? Make.Text(12, NumDifferent) : Make.Edit(Old, Make.Number(4));
		ASSERT_EQ(ToText(ComputeLineDiff(Old, New)), ToText(WalkTable(Old, New))) << ToUtf8(Old) << "\n---\n" << ToUtf8(New);
	}
	// Over many words and kept rows.
	for (int32 Round = 0; Round < 60; ++Round)
	{
		const int32 NumDifferent = 1 << Make.Number(11);
		const FString Old = Make.Text(900, NumDifferent);
		const FString New = Make.Number(2) ? Make.Text(900, NumDifferent) : Make.Edit(Old, Make.Number(300));
		ASSERT_EQ(ToText(ComputeLineDiff(Old, New)), ToText(WalkTable(Old, New))) << Round;
	}
}
