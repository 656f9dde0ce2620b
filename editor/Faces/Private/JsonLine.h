#pragma once

#include "Dom/JsonObject.h"

/** Writes one object as one line of JSON to stdout, at once. */
void WriteJsonLine(const TSharedRef<FJsonObject>& Object);

/** Null when the text is no JSON object; the message then says why. */
TSharedPtr<FJsonObject> ReadJsonObject(const FString& Text, FString& OutError);
