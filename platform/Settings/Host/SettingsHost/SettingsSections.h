#pragma once

#include "ISettingsModule.h"

/** A registered section and where it belongs. */
struct FSettingsEntry
{
	FName Container;
	FName Category;
	TSharedRef<ISettingsSection> Section;
};

/** What the editor builds its settings pages from. */
struct SETTINGS_API FHostSettings
{
	/** In the order of registration; empty while the module is not loaded. */
	static TArray<FSettingsEntry> GetSections();
};
