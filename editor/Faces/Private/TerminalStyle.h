#pragma once

#include "CoreMinimal.h"

/** Prints chat lines and diffs, in colour where standard output is a terminal that wants it. */
class FTerminalStyle
{
public:
	FTerminalStyle();

	void PrintLine(const FString& Text, const TCHAR* Look) const;
	/** The lines that differ, with two lines around them. */
	void PrintDiff(const FString& Path, const FString& OldContent, const FString& NewContent) const;
	/** Text of the terminal's own, not of the conversation. */
	void PrintNote(const FString& Text) const;
	void PrintPrompt(const FString& Text) const;

private:
	void Print(const FString& Text, const char* ColorCode, bool bLineEnd = true) const;

	bool bColored;
};
