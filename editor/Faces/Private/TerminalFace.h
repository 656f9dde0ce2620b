#pragma once

#include "CoreMinimal.h"
#include "TerminalStyle.h"

class FLineReader;

/**
 * A conversation on a terminal. A line is a prompt, or a command that begins with "/". When standard input is no terminal, a line
 * is taken only once it is the user's turn, as a person would do it; but "/pause" is taken at once.
 */
class FTerminalFace
{
public:
	FTerminalFace();
	~FTerminalFace();
	UE_NONCOPYABLE(FTerminalFace)

	int32 Run();

private:
	/** Takes the lines that are due. */
	void TakeLines(FLineReader& Input);
	void HandleInterrupt();
	void ShowPrompt();
	bool IsLineDue(const FString& Line) const;
	/** Whether it is the user's turn. */
	bool IsUsersTurn() const;

	FTerminalStyle Style;
	FDelegateHandle StateHandle;
	bool bInteractive;
	bool bPromptShown = false;
	/** From "Sending request..." until the service has taken the command on, or it has failed. */
	bool bCommandOnItsWay = false;
	/** A line that has come and waits until it is due. */
	FString NextLine;
	bool bHasNextLine = false;
	bool bQuit = false;
};
