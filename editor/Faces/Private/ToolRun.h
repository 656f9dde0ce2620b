#pragma once

#include "Dom/JsonObject.h"

/**
 * Runs a tool through the agent as a call of the service would run, and the main loop until a compile has ended that it has started.
 * @return its results {content, is_error}, at least one, which are not sent to the service
 */
TArray<TSharedPtr<FJsonObject>> RunTool(const FString& Name, const FString& Id, const TSharedPtr<FJsonObject>& Input);
