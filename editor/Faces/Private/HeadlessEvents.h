#pragma once

#include "Dom/JsonObject.h"

// The events of the headless face, each one line of JSON on stdout.

void WriteReadyEvent(const struct FFaceOptions& Options);
void WriteStatusEvent(const FString& Text, const FLinearColor& Color, const FName& FontName, float FontSize);
void WriteDiffEvent(const FString& Path, const FString& OldContent, const FString& NewContent);
/** The agent's state and all that goes with it. */
void WriteStateEvent();
void WriteToolEvent(const FString& Name, const FJsonObject& Result);
void WriteWaitedEvent(bool bTimedOut);
/** The undo buffer: the titles from the oldest on, and how many of them are undone. */
void WriteTransactionsEvent();
/** The panel's widget tree, the widget with the focus as the way to it from the root, and whether the chat is scrolled to its end. */
void WriteWidgetsEvent(const struct FWidgetDriver& Panel);
void WriteErrorEvent(const FString& Message);
