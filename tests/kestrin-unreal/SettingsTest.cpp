#include "KestrinSettings.h"
#include "Misc/ConfigCacheIni.h"
#include "Support/TestProject.h"
#include "UObject/UnrealType.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace
{
const char* const ConfigFile = "Config/DefaultEditorPerUserSettings.ini";

UKestrinSettings& Settings()
{
	return *GetMutableDefault<UKestrinSettings>();
}

void Edit(const TCHAR* Field)
{
	FPropertyChangedEvent Event(Settings().GetClass()->FindPropertyByName(FName(Field)));
	Settings().PostEditChangeProperty(Event);
}

TEST(Settings, FieldsAreShownAndSavedAsTheyShould)
{
	struct FField
	{
		const TCHAR* Name;
		bool bShown;
		bool bSaved;
		const TCHAR* Category;
		const TCHAR* DisplayName;
		const TCHAR* ToolTip;
	};
	const TCHAR* const Extensions = TEXT("Kestrin|Filtering|File|Extensions");
	const TCHAR* const Directories = TEXT("Kestrin|Filtering|File|Directories");
	const FField Fields[] = {
		{ TEXT("ApiKey"), true, true, TEXT("Kestrin|Authentication"), TEXT("API Key"),
			TEXT("Authentication key required to access Kestrin AI services") },
		{ TEXT("Mode"), false, false, TEXT(""), TEXT(""), TEXT("") },
		{ TEXT("bDisplayFileChangesInChat"), true, true, TEXT("Kestrin|Interface"), TEXT("Display File Changes In Chat"),
			TEXT("Enables or disables the display of file modifications, creations, and deletions in the chat interface") },
		{ TEXT("bResetSupportedFileExtensions"), true, false, Extensions, TEXT(""), TEXT("Reset Supported File Extensions") },
		{ TEXT("SupportedFileExtensions"), true, true, Extensions, TEXT("Supported File Extensions"),
			TEXT("Additional file extensions beyond UE4's default types (py, cs, json, cpp, h, uasset, umap, ini, uproject, csv)") },
		{ TEXT("bResetExcludedDirectories"), true, false, Directories, TEXT(""), TEXT("Reset Excluded Directories") },
		{ TEXT("ExcludedDirectories"), true, true, Directories, TEXT("Excluded Directories"),
			TEXT("Directories to exclude from the file tree") },
		{ TEXT("BlueprintContentFilter"), false, false, TEXT(""), TEXT(""), TEXT("") },
		{ TEXT("LogRetentionPolicy"), true, true, TEXT("Kestrin|Logs"), TEXT("Log Retention Policy"),
			TEXT("Defines how long log files should be kept before automatic deletion") },
		{ TEXT("AutoScrollPauseSeconds"), false, false, TEXT(""), TEXT(""), TEXT("") },
	};
	TFieldIterator<FProperty> Property(UKestrinSettings::StaticClass());
	for (const FField& Field : Fields)
	{
		SCOPED_TRACE(ToUtf8(Field.Name));
		ASSERT_TRUE(static_cast<bool>(Property));
		EXPECT_EQ(ToUtf8(Property->GetName()), ToUtf8(Field.Name));
		EXPECT_EQ(Property->HasAnyPropertyFlags(CPF_Edit), Field.bShown);
		EXPECT_EQ(Property->HasAnyPropertyFlags(CPF_Config), Field.bSaved);
		if (Field.bShown)
		{
			EXPECT_EQ(ToUtf8(Property->GetMetaData("Category")), ToUtf8(Field.Category));
			EXPECT_EQ(ToUtf8(Property->GetMetaData("DisplayName")), ToUtf8(Field.DisplayName));
			EXPECT_EQ(ToUtf8(Property->GetMetaData("ToolTip")), ToUtf8(Field.ToolTip));
		}
		++Property;
	}
	EXPECT_FALSE(static_cast<bool>(Property));
}

TEST(Settings, TheClassIsFoundWhereTheEditorLooksForIt)
{
	UClass* const Class = UKestrinSettings::StaticClass();
	EXPECT_EQ(ToUtf8(Class->GetPathName()), "/Script/Kestrin.KestrinSettings");
	EXPECT_EQ(ToUtf8(Class->ClassConfigName.ToString()), "EditorPerUserSettings");
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_DefaultConfig));
	EXPECT_TRUE(Settings().GetEnabledAssetClassPatterns().IsEmpty());
}

TEST(Settings, EnumsCarryTheirTexts)
{
	EXPECT_EQ(ToUtf8(StaticEnum<EKestrinMode>()->GetDisplayNameTextByValue(1).ToString()), "Explainer And Implementer Mode");
	EXPECT_EQ(
		ToUtf8(StaticEnum<EKestrinLogDeletionPolicy>()->GetToolTipTextByIndex(1).ToString()), "Maintains a rolling 30-day log history");
	EXPECT_EQ(ToUtf8(StaticEnum<EAssetGroupCategory>()->GetDisplayNameTextByValue(19).ToString()), "VR/AR Assets");
	EXPECT_EQ(
		ToUtf8(StaticEnum<EKestrinBlueprintContentFilter>()->GetDisplayNameTextByValue(2).ToString()), "Use Only Blueprint Class Content");
}

TEST(Settings, AResetBoxRestoresItsListClearsItselfAndSaves)
{
	FTestProject Project;
	Settings().SupportedFileExtensions = { TEXT("txt") };
	Settings().ExcludedDirectories = { TEXT("Mine") };
	Edit(TEXT("bResetSupportedFileExtensions"));
	EXPECT_EQ(Settings().SupportedFileExtensions, TArray<FString>{ TEXT("txt") });
	EXPECT_FALSE(Project.Has(ConfigFile));

	Settings().bResetSupportedFileExtensions = true;
	Edit(TEXT("bResetSupportedFileExtensions"));
	EXPECT_EQ(Settings().SupportedFileExtensions.Num(), 10);
	EXPECT_FALSE(Settings().bResetSupportedFileExtensions);
	EXPECT_EQ(Settings().ExcludedDirectories, TArray<FString>{ TEXT("Mine") });
	EXPECT_THAT(Project.Read(ConfigFile), HasSubstr("[/Script/Kestrin.KestrinSettings]"));
	EXPECT_THAT(Project.Read(ConfigFile), HasSubstr("+ExcludedDirectories=Mine\n"));

	Settings().bResetExcludedDirectories = true;
	Edit(TEXT("bResetExcludedDirectories"));
	EXPECT_EQ(Settings().ExcludedDirectories.Num(), 10);
	EXPECT_EQ(Project.Read(ConfigFile).find("Mine"), std::string::npos);
}

TEST(Settings, SavedFieldsComeBackAndOthersDoNot)
{
	FTestProject Project;
	Settings().ApiKey = TEXT("k\"e=y;ü ");
	Settings().bDisplayFileChangesInChat = false;
	Settings().LogRetentionPolicy = EKestrinLogDeletionPolicy::KeepAll;
	Settings().SupportedFileExtensions = {};
	Settings().ExcludedDirectories = { TEXT("a b"), TEXT("c,d"), TEXT("a b") };
	Settings().AutoScrollPauseSeconds = 3.0f;
	Settings().SaveConfig(CPF_Config, nullptr, GConfig, true);
	EXPECT_EQ(Project.Read(ConfigFile).find("AutoScroll"), std::string::npos);

	const FString Key = Settings().ApiKey;
	const TArray<FString> Directories = Settings().ExcludedDirectories;
	Settings().ApiKey.Empty();
	Settings().bDisplayFileChangesInChat = true;
	Settings().LogRetentionPolicy = EKestrinLogDeletionPolicy::DeleteAllOnStart;
	Settings().ResetSupportedFileExtensions();
	Settings().ResetExcludedDirectories();
	Settings().LoadConfig();
	EXPECT_TRUE(Settings().ApiKey.Equals(Key)) << ToUtf8(Settings().ApiKey);
	EXPECT_FALSE(Settings().bDisplayFileChangesInChat);
	EXPECT_EQ(Settings().LogRetentionPolicy, EKestrinLogDeletionPolicy::KeepAll);
	EXPECT_TRUE(Settings().SupportedFileExtensions.IsEmpty());
	EXPECT_EQ(Settings().ExcludedDirectories, Directories);
	Settings().AutoScrollPauseSeconds = 10.0f;
}
}
