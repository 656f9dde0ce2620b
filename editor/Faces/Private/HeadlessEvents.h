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
void WriteErrorEvent(const FString& Message);
