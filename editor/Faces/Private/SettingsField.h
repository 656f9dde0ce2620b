#pragma once

#include "Dom/JsonObject.h"

/**
 * Sets a field of the plug-in's settings by its name, as an edit on the settings page would: the settings hear of the change.
 * Enums are given by name, lists as arrays. @param bSave also save the config. @return false, with a message, when that can't be done
 */
bool SetSettingsField(const FString& Name, const FJsonValue& Value, bool bSave, FString& OutError);
