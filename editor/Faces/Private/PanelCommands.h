#pragma once

#include "CoreMinimal.h"

class SDockTab;

// What a user does with the chat panel, without a window. Each gives an error event when that can't be done now.

/** The chat panel's tab; null when it is not open. */
TSharedPtr<SDockTab> FindPanel();
/** Opens the chat panel's tab. */
void OpenPanel();
void TypeIntoPanel(const FString& Text);
void PressKeyInPanel(const FString& Key, bool bShift);
void ClickInPanel(const FString& Button);
void ScrollPanel();
/** Answers with the panel's widget tree. */
void WritePanelWidgets();
/** Fires the editor command of that name, as the menu entry or the tool bar's button does that has it. */
void FireEditorCommand(const FString& Name);
