#pragma once

#include "ISettingsModule.h"

/** A registered section and where it belongs. */
struct FSettingsEntry
{
	FName Container;
	FName Category;
	TSharedRef<ISettingsSection> Section;
};

/** What of an object an edit writes to its config file. */
enum class ESettingsSave : uint8
{
	Nothing,
	/** What the file says of the other properties stays, whoever wrote it. */
	EditedProperty,
	AllProperties
};

/** What the editor builds its settings pages from. */
struct SETTINGS_API FHostSettings
{
	/** In the order of registration; empty while the module is not loaded. */
	static TArray<FSettingsEntry> GetSections();
	/**
	 * To be called when an editor has given a property another value: the object hears of it, and config properties are written to the file
	 * that the object's class is saved to.
	 * @return false when the default config file can't be written; the log says why, and the value stays
	 */
	[[nodiscard]] static bool FinishEdit(UObject& Object, FProperty& Property, ESettingsSave Save);
};
