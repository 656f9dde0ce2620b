#pragma once

#include "CoreMinimal.h"

enum class EDiffLineType : uint8
{
	/** In both texts. */
	Unchanged,
	/** Only in the new text. */
	Added,
	/** Only in the old text. */
	Removed
};

struct FDiffLine
{
	/** Without its line end; an unchanged line in the old text's spelling. */
	FString Text;
	EDiffLineType Type = EDiffLineType::Unchanged;
	/** From 1; 0 for an added line. */
	int32 OldLineNumber = 0;
	/** From 1; 0 for a removed line. */
	int32 NewLineNumber = 0;
};

/**
 * The lines of both texts in order, as few of them changed as possible; the case of letters does not count. Where there is a choice,
 * removed lines stand ahead of the added ones. Of several shortest answers it is always the one that a walk back through the whole table
 * of the longest common subsequences finds, in far less time and memory than that table takes.
 */
KESTRIN_API TArray<FDiffLine> ComputeLineDiff(const FString& OldContent, const FString& NewContent);
