#pragma once

#include "Dom/JsonObject.h"

/** Runs a tool through the agent as a call of the service would run. @return its results, which are not sent to the service */
TArray<TSharedPtr<FJsonObject>> RunTool(const FString& Name, const FString& Id, const TSharedPtr<FJsonObject>& Input);
