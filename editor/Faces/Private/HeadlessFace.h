#pragma once

#include "Agent/KestrinInterface.h"
#include "EditorFaces.h"

/**
 * Commands in, events out, one JSON object a line each. Commands run in order; the main loop runs between them and while one waits.
 * From its making to its end it hears what the plug-in says.
 */
class FHeadlessFace
{
public:
	FHeadlessFace();
	~FHeadlessFace();
	UE_NONCOPYABLE(FHeadlessFace)

	int32 Run(const FFaceOptions& Options);

private:
	/** Takes the chat's lines and diffs from a panel that was opened, which gets them through this face from then on. */
	void HearChat();
	void OnStatus(FString Text, FLinearColor Color, FName FontName, float FontSize);
	void OnDiff(FString Path, FString OldContent, FString NewContent);

	FDelegateHandle StateHandle;
	FOnKestrinAddStatusMessage PanelStatus;
	FOnKestrinAddDiffMessage PanelDiff;
};
