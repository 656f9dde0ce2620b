#pragma once

#include "UObject/WeakObjectPtr.h"

/** A page of the settings: the properties of one object, with the page's texts. */
class ISettingsSection
{
public:
	virtual ~ISettingsSection() = default;

	virtual const FName& GetName() const = 0;
	virtual const FText& GetDisplayName() const = 0;
	virtual const FText& GetDescription() const = 0;
	virtual TWeakObjectPtr<UObject> GetSettingsObject() const = 0;
};

using ISettingsSectionPtr = TSharedPtr<ISettingsSection>;
