#include "CoreHost/Project.h"
#include "Misc/ConfigCacheIni.h"
#include "TestSettings.h"
#include "TestSupport.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
// An open project with a folder of its own; objects are read from its files anew.
class ObjectConfig : public testing::Test
{
protected:
	// The default objects are made while no project is open, so that they have the defaults of the sources.
	static void SetUpTestSuite()
	{
		GetDefault<UTestDerivedSettings>();
		GetDefault<UTestUserSettings>();
	}
	void SetUp() override { FHostProject::Set(Directory / "My Project/My Pröject.uproject"); }
	void TearDown() override { FHostProject::Set(FString()); }

	void WriteDefault(const std::string& Text) const { Directory.Write("My Project/Config/DefaultTestGame.ini", Text); }
	std::string ReadDefault() const { return Directory.Read("My Project/Config/DefaultTestGame.ini"); }

	template <typename T>
	T* Load() const
	{
		T* const Object = NewObject<T>();
		Object->LoadConfig();
		return Object;
	}

	const FTestDirectory Directory;
};
}

TEST_F(ObjectConfig, ReadsItsSectionOverTheDefaults)
{
	WriteDefault("[/Script/TestObjects.TestSettings]\n"
				 "Key=a key, \"quoted\"\n"
				 "bShown=no\n"
				 "Mode=VeryFast\n"
				 "+Words=three\n"
				 "Item=(Label=\"x\")\n"
				 "NotSaved=5\n"
				 "[/Script/TestObjects.TestDerivedSettings]\n"
				 "Key=derived\n"
				 "Shared=9\n"
				 "Own=2.5\n");
	const UTestSettings* const Settings = Load<UTestSettings>();
	EXPECT_EQ(Settings->Key, TEXT("a key, \"quoted\""));
	EXPECT_FALSE(Settings->bShown);
	EXPECT_EQ(Settings->Limit, 3) << "not in the file";
	EXPECT_EQ(Settings->Mode, ETestMode::VeryFast);
	EXPECT_EQ(Settings->Words, (TArray<FString>{ TEXT("three") })) << "a list in the file replaces the default";
	EXPECT_EQ(Settings->Item.Label, TEXT("x"));
	EXPECT_EQ(Settings->Item.Count, 1);
	EXPECT_EQ(Settings->NotSaved, 1);
	const UTestDerivedSettings* const Derived = Load<UTestDerivedSettings>();
	EXPECT_EQ(Derived->Key, TEXT("derived"));
	EXPECT_EQ(Derived->Mode, ETestMode::VeryFast) << "from the section of the super class";
	EXPECT_EQ(Derived->Own, 2.5f);
	EXPECT_EQ(Derived->Shared, 0) << "global: in the section of the class that declares it alone";
}

TEST_F(ObjectConfig, PassesOverValuesThatAreNone)
{
	WriteDefault("[/Script/TestObjects.TestSettings]\nLimit=many\nbShown=1x\nMode=Fastest\nItem=(Label=\"half\",Count=x)\nKey=good\n");
	const FLogLines Log;
	const UTestSettings* const Settings = Load<UTestSettings>();
	EXPECT_EQ(Settings->Limit, 3);
	EXPECT_TRUE(Settings->bShown);
	EXPECT_EQ(Settings->Mode, ETestMode::Slow);
	EXPECT_EQ(Settings->Item.Label, TEXT("")) << "nothing of a value that is half bad";
	EXPECT_EQ(Settings->Key, TEXT("good"));
	EXPECT_EQ(Log.Lines.Num(), 4);
	EXPECT_TRUE(Log.HasLineWith(TEXT("DefaultTestGame.ini: [/Script/TestObjects.TestSettings] Limit: 'many' is no int32")));
}

TEST_F(ObjectConfig, SavesAndReadsBackWhatItSaved)
{
	WriteDefault("; by hand\n[Other]\nA = 1\n");
	UTestSettings* const Settings = NewObject<UTestSettings>();
	Settings->Key = TEXT(" with blanks ");
	Settings->Words.Empty();
	Settings->Item.Tags = { TEXT("a,b"), TEXT("\"") };
	Settings->NotSaved = 7;
	Settings->SaveConfig(CPF_Config, nullptr, GConfig, false);
	EXPECT_EQ(ReadDefault(),
		"; by hand\n[Other]\nA = 1\n\n[/Script/TestObjects.TestSettings]\n"
		"Key=\" with blanks \"\nbShown=True\nLimit=3\nMode=Slow\n!Words=ClearArray\n"
		"Item=(Count=1,Label=\"\",Tags=(\"a,b\",\"\\\"\"),Owner=None)\nShared=0\n");
	const UTestSettings* const Again = Load<UTestSettings>();
	EXPECT_EQ(Again->Key, TEXT(" with blanks "));
	EXPECT_TRUE(Again->Words.IsEmpty()) << "an empty list is not the default one";
	EXPECT_EQ(Again->Item.Tags, Settings->Item.Tags);

	Settings->Words = { TEXT("b"), TEXT("b"), TEXT("") };
	EXPECT_TRUE(Settings->TryUpdateDefaultConfigFile());
	EXPECT_EQ(Load<UTestSettings>()->Words, Settings->Words);
}

TEST_F(ObjectConfig, SavesOverWhatAnotherProgramWrote)
{
	WriteDefault("[/Script/TestObjects.TestSettings]\nLimit=1\n");
	UTestSettings* const Settings = Load<UTestSettings>();
	WriteDefault("[New]\nA=1\n[/Script/TestObjects.TestSettings]\nLimit=2\nUnknown=kept\n");
	Settings->Limit = 1;
	Settings->SaveConfig(CPF_Config, nullptr, GConfig, false);
	EXPECT_TRUE(ReadDefault().starts_with("[New]\nA=1\n[/Script/TestObjects.TestSettings]\nLimit=1\nUnknown=kept\n")) << ReadDefault();
}

TEST_F(ObjectConfig, SavesOnePropertyAndLeavesTheOthers)
{
	WriteDefault("[/Script/TestObjects.TestSettings]\nLimit=1\nKey=old\n");
	UTestSettings* const Settings = Load<UTestSettings>();
	WriteDefault("[/Script/TestObjects.TestSettings]\nLimit=1\nKey=by hand\n");
	Settings->Limit = 2;
	const FProperty* const Limit = UTestSettings::StaticClass()->FindPropertyByName("Limit");
	EXPECT_TRUE(Settings->UpdateSinglePropertyInConfigFile(Limit, Settings->GetDefaultConfigFilename()));
	EXPECT_EQ(ReadDefault(), "[/Script/TestObjects.TestSettings]\nLimit=2\nKey=by hand\n");
}

TEST_F(ObjectConfig, CopiesToTheDefaultObjectWhereAllowed)
{
	UTestSettings* const Defaults = GetMutableDefault<UTestSettings>();
	const int32 Before = Defaults->Limit;
	UTestSettings* const Settings = NewObject<UTestSettings>();
	Settings->Limit = Before + 1;
	Settings->SaveConfig(CPF_Config, nullptr, GConfig, false);
	EXPECT_EQ(Defaults->Limit, Before);
	Settings->SaveConfig();
	EXPECT_EQ(Defaults->Limit, Before + 1);
	EXPECT_EQ(NewObject<UTestSettings>()->Limit, Before + 1) << "new objects take config values from the default object";
	Defaults->Limit = Before;
}

TEST_F(ObjectConfig, KeepsAUsersSettingsUnderSaved)
{
	Directory.Write("My Project/Config/DefaultTestUser.ini", "[/Script/TestObjects.TestUserSettings]\nValue=1\nOther=1\n");
	Directory.Write("My Project/Saved/Config/LinuxEditor/TestUser.ini", "[/Script/TestObjects.TestUserSettings]\nValue=2\n");
	UTestUserSettings* const Settings = Load<UTestUserSettings>();
	EXPECT_EQ(Settings->Value, 2);
	EXPECT_EQ(Settings->Other, 1);
	Settings->Value = 3;
	Settings->SaveConfig(CPF_Config, nullptr, GConfig, false);
	EXPECT_EQ(
		Directory.Read("My Project/Saved/Config/LinuxEditor/TestUser.ini"), "[/Script/TestObjects.TestUserSettings]\nValue=3\nOther=1\n");
	EXPECT_TRUE(Settings->TryUpdateDefaultConfigFile());
	EXPECT_EQ(Directory.Read("My Project/Config/DefaultTestUser.ini"), "[/Script/TestObjects.TestUserSettings]\nValue=3\nOther=1\n");
}

TEST_F(ObjectConfig, SaysSoWhenItCannotSave)
{
	UTestSettings* const Settings = NewObject<UTestSettings>();
	Directory.Write("My Project/Config", "a file where the folder should be");
	const FLogLines Log;
	EXPECT_FALSE(Settings->TryUpdateDefaultConfigFile());
	EXPECT_TRUE(Log.HasLineWith(TEXT("DefaultTestGame.ini can't be written")));
	FHostProject::Set(FString());
	EXPECT_FALSE(Settings->TryUpdateDefaultConfigFile());
	Settings->SaveConfig();
	EXPECT_TRUE(Log.HasLineWith(TEXT("has no config file to be saved to")));
}
