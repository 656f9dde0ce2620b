#include "ISettingsModule.h"
#include "SettingsHost/SettingsSections.h"
#include "UObject/UnrealType.h"

namespace
{
class FSettingsSection final : public ISettingsSection
{
public:
	FSettingsSection(
		const FName& InName, const FText& InDisplayName, const FText& InDescription, const TWeakObjectPtr<UObject>& InSettingsObject)
		: Name(InName)
		, DisplayName(InDisplayName)
		, Description(InDescription)
		, SettingsObject(InSettingsObject)
	{
	}

	const FName& GetName() const override { return Name; }
	const FText& GetDisplayName() const override { return DisplayName; }
	const FText& GetDescription() const override { return Description; }
	TWeakObjectPtr<UObject> GetSettingsObject() const override { return SettingsObject; }

private:
	const FName Name;
	const FText DisplayName;
	const FText Description;
	const TWeakObjectPtr<UObject> SettingsObject;
};

class FSettingsModule final : public ISettingsModule
{
public:
	ISettingsSectionPtr RegisterSettings(const FName& ContainerName, const FName& CategoryName, const FName& SectionName,
		const FText& DisplayName, const FText& Description, const TWeakObjectPtr<UObject>& SettingsObject) override
	{
		UnregisterSettings(ContainerName, CategoryName, SectionName);
		const auto Section = MakeShared<FSettingsSection>(SectionName, DisplayName, Description, SettingsObject);
		Entries.Add({ ContainerName, CategoryName, Section });
		return Section.ToSharedPtr();
	}

	void UnregisterSettings(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) override
	{
		Entries.RemoveAll([&](const FSettingsEntry& Entry)
			{ return Entry.Container == ContainerName && Entry.Category == CategoryName && Entry.Section->GetName() == SectionName; });
	}

	const TArray<FSettingsEntry>& GetEntries() const { return Entries; }

private:
	TArray<FSettingsEntry> Entries;
};
}

TArray<FSettingsEntry> FHostSettings::GetSections()
{
	const FSettingsModule* const Module = FModuleManager::GetModulePtr<FSettingsModule>("Settings");
	return Module ? Module->GetEntries() : TArray<FSettingsEntry>();
}

bool FHostSettings::FinishEdit(UObject& Object, FProperty& Property, ESettingsSave Save)
{
	FPropertyChangedEvent Event(&Property, EPropertyChangeType::ValueSet);
	Object.PostEditChangeProperty(Event);
	if (Save == ESettingsSave::Nothing)
	{
		return true;
	}
	if (!Object.GetClass()->HasAnyClassFlags(CLASS_DefaultConfig))
	{
		Object.SaveConfig();
		return true;
	}
	return Save == ESettingsSave::AllProperties ? Object.TryUpdateDefaultConfigFile()
												: Object.UpdateSinglePropertyInConfigFile(&Property, Object.GetDefaultConfigFilename());
}

IMPLEMENT_MODULE(FSettingsModule, Settings)
