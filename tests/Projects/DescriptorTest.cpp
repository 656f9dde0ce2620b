#include "CoreHost/Project.h"
#include "Interfaces/IPluginManager.h"
#include "ProjectDescriptor.h"
#include "ProjectsHost/Plugins.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(Descriptor, IsRead)
{
	const FTestDirectory Directory;
	Directory.Write("A.uproject", R"({ "FileVersion": 3, "engineAssociation": "5.5", "Description": "A game", "Modules": [
		{ "Name": "Game", "Type": "Runtime", "LoadingPhase": "PreDefault", "AdditionalDependencies": [] }, { "Name": "GameEditor", "Type": "editor" } ],
		"Plugins": [ { "Name": "Other", "Enabled": true } ] })");
	FProjectDescriptor Project;
	FText Reason;
	ASSERT_TRUE(Project.Load(Directory / "A.uproject", Reason)) << TCHAR_TO_UTF8(*Reason.ToString());
	EXPECT_EQ(Project.EngineAssociation, TEXT("5.5"));
	EXPECT_EQ(Project.Description, TEXT("A game"));
	ASSERT_EQ(Project.Modules.Num(), 2);
	EXPECT_EQ(Project.Modules[0].Name, FName("Game"));
	EXPECT_EQ(Project.Modules[0].Type, EHostType::Runtime);
	EXPECT_EQ(Project.Modules[0].LoadingPhase, ELoadingPhase::PreDefault);
	EXPECT_EQ(Project.Modules[1].Type, EHostType::Editor);
	EXPECT_EQ(Project.Modules[1].LoadingPhase, ELoadingPhase::Default);
}

TEST(Descriptor, NamesTheFileAndWhatIsWrong)
{
	struct
	{
		const char* Text;
		const TCHAR* Reason;
	} const Cases[] = {
		{ "", TEXT("it is no JSON object") },
		{ "[]", TEXT("it is no JSON object") },
		{ "{ \"Modules\": [ }", TEXT("it is no JSON object. ") },
		{ "{ \"Description\": 5 }", TEXT("'Description' is no string") },
		{ "{ \"Modules\": {} }", TEXT("'Modules' is no array") },
		{ "{ \"Modules\": [ \"Game\" ] }", TEXT("'Modules[0]' is no object") },
		{ "{ \"Modules\": [ { \"Name\": \"A\" }, { \"Type\": \"Editor\" } ] }", TEXT("'Modules[1]' has no 'Name'") },
		{ "{ \"Modules\": [ { \"Name\": \"A\", \"Type\": \"Editr\" } ] }", TEXT("module 'A' has an unknown 'Type': 'Editr'") },
		{ "{ \"Modules\": [ { \"Name\": \"A\", \"LoadingPhase\": 3 } ] }", TEXT("module 'A' has an unknown 'LoadingPhase': '3'") },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(Each.Text);
		const FTestDirectory Directory;
		Directory.Write("A.uplugin", Each.Text);
		FPluginDescriptor Plugin;
		FText Reason;
		EXPECT_FALSE(Plugin.Load(Directory / "A.uplugin", &Reason));
		EXPECT_TRUE(Reason.ToString().StartsWith(Directory / "A.uplugin" + TEXT(": ") + Each.Reason)) << TCHAR_TO_UTF8(*Reason.ToString());
	}
	FProjectDescriptor Missing;
	FText Reason;
	EXPECT_FALSE(Missing.Load(TEXT("/no/such.uproject"), Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("/no/such.uproject: the file can't be read"));
}

TEST(PluginManager, FindsTheProjectsPluginsAndTheHosts)
{
	const FTestDirectory Directory;
	const auto Describe = [](const char* Version) { return std::string("{ \"VersionName\": \"") + Version + "\" }"; };
	Directory.Write("Game/Plugins/First/First.uplugin", Describe("1"));
	Directory.Write("Game/Plugins/First/Inner/Inner.uplugin", Describe("1"));
	Directory.Write("Game/Plugins/Group/Second/Second.uplugin", Describe("1"));
	Directory.Write("Game/Plugins/Broken/Broken.uplugin", "{");
	Directory.Write("Host/First.uplugin", Describe("2"));
	Directory.Write("Empty/readme.txt");
	std::filesystem::create_directory_symlink(Directory.Native("Game/Plugins"), Directory.Native("Game/Plugins/Group/Loop"));
	FHostProject::Set(Directory / "Game/Game.uproject");

	IPluginManager& Manager = IPluginManager::Get();
	const FLogLines Log;
	Manager.RefreshPluginsList();
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogPluginManager|Error|A plug-in is left out. ")));
	EXPECT_TRUE(Log.HasLineWith(TEXT("Plugins/Broken/Broken.uplugin: it is no JSON object")));
	TSharedPtr<IPlugin> First = Manager.FindPlugin(TEXT("first"));
	ASSERT_TRUE(First.IsValid());
	EXPECT_EQ(First->GetName(), TEXT("First"));
	EXPECT_EQ(First->GetBaseDir(), Directory / "Game/Plugins/First");
	EXPECT_EQ(First->GetDescriptor().VersionName, TEXT("1"));
	EXPECT_EQ(First->GetFriendlyName(), TEXT("First"));
	EXPECT_TRUE(Manager.FindPlugin(TEXT("Second")).IsValid());
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Inner")).IsValid());
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Broken")).IsValid());

	FText Reason;
	ASSERT_TRUE(FHostPlugins::Add(Directory / "Host", Reason).IsValid());
	EXPECT_EQ(Manager.FindPlugin(TEXT("First"))->GetDescriptor().VersionName, TEXT("2")) << "comes first";
	EXPECT_FALSE(FHostPlugins::Add(Directory / "Empty", Reason).IsValid());
	EXPECT_EQ(Reason.ToString(), Directory / "Empty" + TEXT(": the folder has no .uplugin file"));
	FHostProject::Set(FString());
}
