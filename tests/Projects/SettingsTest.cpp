#include "ISettingsModule.h"
#include "SettingsHost/SettingsSections.h"
#include "TestSettings.h"
#include "TestSupport.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

TEST(Settings, ListsTheSectionsThatAreRegistered)
{
	ISettingsModule& Module = FModuleManager::LoadModuleChecked<ISettingsModule>("Settings");
	const auto Register = [&Module](const FName& Name, const TCHAR* Text, UObject* Object)
	{ return Module.RegisterSettings("Project", "Plugins", Name, FText::FromString(Text), FText::FromString(TEXT("What it is")), Object); };
	Register("A", TEXT("First"), GetMutableDefault<UTestSettings>());
	Register("B", TEXT("Second"), GetMutableDefault<UTestSettings>());
	const ISettingsSectionPtr Again = Register("A", TEXT("Third"), NewObject<UTestUserSettings>());

	TArray<FSettingsEntry> Sections = FHostSettings::GetSections();
	ASSERT_EQ(Sections.Num(), 2);
	EXPECT_EQ(Sections[0].Section->GetName(), FName("B"));
	EXPECT_EQ(Sections[0].Category, FName("Plugins"));
	EXPECT_EQ(Sections[0].Section->GetSettingsObject().Get(), GetDefault<UTestSettings>());
	EXPECT_EQ(Sections[1].Section->GetDisplayName().ToString(), TEXT("Third")) << "replaces the one of its name";
	EXPECT_TRUE(Again->GetSettingsObject().IsValid());
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Again->GetSettingsObject().IsValid()) << "a section does not keep its object";

	Module.UnregisterSettings("Project", "Plugins", "B");
	Module.UnregisterSettings("Editor", "Plugins", "A");
	Sections = FHostSettings::GetSections();
	ASSERT_EQ(Sections.Num(), 1);
	EXPECT_EQ(Sections[0].Section->GetName(), FName("A"));
	FModuleManager::Get().UnloadModule("Settings");
	EXPECT_TRUE(FHostSettings::GetSections().IsEmpty());
}
