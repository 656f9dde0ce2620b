#pragma once

#include "Dom/JsonObject.h"

/**
 * From now on standard output is WriteJsonLine's alone: what scripts and the programs that they start write to it goes to standard error.
 */
void TakeStandardOutput();
/** Writes one object as one line of JSON to standard output, at once. */
void WriteJsonLine(const TSharedRef<FJsonObject>& Object);

/** Null when the text is no JSON object; the message then says why. */
TSharedPtr<FJsonObject> ReadJsonObject(const FString& Text, FString& OutError);
