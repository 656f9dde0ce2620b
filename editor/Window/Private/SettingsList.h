#pragma once

#include "SettingsWidget.h"

class IValueEditor;

/** An array: its elements one below the other, edited in place, and buttons to add, remove and move them. */
FSettingsWidget MakeSettingsList(const FSettingsValue& Value, const IValueEditor& Editor, QWidget* Parent);
