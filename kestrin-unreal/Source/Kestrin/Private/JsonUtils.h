#pragma once

#include "Dom/JsonObject.h"

/** Null when the text is no document whose root is an object. */
TSharedPtr<FJsonObject> ParseJsonObject(const FString& Text);
/** Without line breaks and indentation. */
FString ToCondensedJson(const TSharedRef<FJsonObject>& Object);
FString ToCondensedJson(const TArray<TSharedPtr<FJsonValue>>& Array);
/** A text as a JSON string, with its quotation marks. */
FString ToJsonString(const FString& Text);
/** Leaves the key out for an empty array. */
void SetArrayUnlessEmpty(FJsonObject& Object, const TCHAR* Key, const TArray<TSharedPtr<FJsonValue>>& Values);
