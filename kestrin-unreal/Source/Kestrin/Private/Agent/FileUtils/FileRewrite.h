#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

enum class EFileRewrite : uint8
{
	Done,
	/** Nothing has changed. */
	DeleteFailed,
	/** The old bytes have been put back. */
	WriteFailed
};

/**
 * Deletes a file and has it written anew. From before the delete until the new text is on disk a copy of the old bytes lies in
 * the plug-in's folder "Saved"; a change whose copy can't be made is not begun.
 *
 * Write: writes the whole file; false when that failed.
 */
EFileRewrite RewriteFile(const FString& FullPath, TFunctionRef<bool()> Write);

/** Puts back the files whose rewrite an earlier run of the editor began and did not end, each with a line in the log. */
void RestoreInterruptedRewrites();
