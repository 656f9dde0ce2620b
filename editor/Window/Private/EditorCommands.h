#pragma once

#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UICommandList.h"

/** What the main window can be told to do, whoever asks. */
struct FMainWindowActions
{
	FExecuteAction Exit;
	FExecuteAction ShowSettings;
	FExecuteAction ToggleOutputLog;
	FIsActionChecked IsOutputLogShown;
};

/** The editor's own entries in the menus "File", "Edit" and "Window", as long as it lives. One at a time. */
class FEditorCommands
{
public:
	explicit FEditorCommands(const FMainWindowActions& Actions);
	~FEditorCommands();
	UE_NONCOPYABLE(FEditorCommands)

private:
	void AddEntries(const TSharedRef<FUICommandList>& List) const;
};
