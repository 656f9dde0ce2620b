#pragma once

// Settings: who registers which object's properties as a page of the settings.
//
// It leaves out the pages' own actions (import, export, reset) and custom widgets. The editor's window shows the pages.

#include "ISettingsSection.h"
#include "Modules/ModuleManager.h"

/** The module "Settings". Game thread. */
class ISettingsModule : public IModuleInterface
{
public:
	/**
	 * @param ContainerName which settings: "Project" or "Editor"
	 * @return the section; one of the same names is replaced
	 */
	virtual ISettingsSectionPtr RegisterSettings(const FName& ContainerName, const FName& CategoryName, const FName& SectionName,
		const FText& DisplayName, const FText& Description, const TWeakObjectPtr<UObject>& SettingsObject) = 0;
	/** Without effect when there is no such section. */
	virtual void UnregisterSettings(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) = 0;
};
