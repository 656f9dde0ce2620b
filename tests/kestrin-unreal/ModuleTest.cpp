#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/Clock.h"
#include "CoreHost/MainLoop.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "HTTPHost/ScriptedTransport.h"
#include "Interfaces/IPluginManager.h"
#include "KestrinSettings.h"
#include "Modules/ModuleManager.h"
#include "SettingsHost/SettingsSections.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/TestProject.h"
#include "ToolMenus.h"

#include <chrono>
#include <gtest/gtest.h>

namespace
{
/** The plug-in's module, from start to stop. */
class FRunningModule
{
public:
	FRunningModule()
	{
		FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
		FModuleManager::Get().LoadModule("Settings");
		FModuleManager::Get().LoadModule("Kestrin");
	}
	~FRunningModule() { FModuleManager::Get().UnloadModule("Kestrin"); }
};

struct FStageCase
{
	const char* Name;
	const char* File;
	const char* Url;
	const char* Key;
};

class StageFile : public testing::TestWithParam<FStageCase>
{
};

TEST_P(StageFile, SelectsTheServicesAddressAndKey)
{
	FTestProject Project;
	if (GetParam().File)
	{
		Project.Write("Config/DefaultPlugin.ini", GetParam().File);
	}
	const FRunningModule Module;
	GetMutableDefault<UKestrinSettings>()->ApiKey = TEXT("settings-key");
	FScriptedTransport Wire;
	FKestrinInterface::Get().InitialRequest(TEXT("x"));
	ASSERT_EQ(Wire.GetRequests().Num(), 1);
	EXPECT_EQ(ToUtf8(Wire.GetRequests()[0].Url), std::string("https://") + GetParam().Url + "/command");
	EXPECT_EQ(ToUtf8(Wire.GetRequests()[0].Headers[1].Value), GetParam().Key);
	FKestrinInterface::Get().EndRequest(FString());
}

const FStageCase Stages[] = {
	{ "NoFile", nullptr, "api.kestrin.example/prod", "settings-key" },
	{ "LowerCase", "[Kestrin]\nStage=sandbox\nSandboxApiUrl=s.example/x\nSandboxApiKey=sk\nDevApiUrl=no\n", "s.example/x", "sk" },
	{ "Sandbox2", "[Kestrin]\nStage=Sandbox2\nSandbox2ApiUrl=s2.example\nSandboxApiKey=no\n", "s2.example", "settings-key" },
	{ "Unknown", "[Kestrin]\nStage=Live\nLiveApiUrl=no\nDevApiUrl=no\n", "api.kestrin.example/prod", "settings-key" },
	{ "OtherSection", "[Other]\nStage=Dev\nDevApiUrl=no\n", "api.kestrin.example/prod", "settings-key" },
	{ "BadLines", "no section\n[Kestrin\n[Kestrin]\nStage=Dev\n===\n\"\nDevApiUrl=d.example\nDevApiKey=\n", "d.example", "settings-key" },
};

INSTANTIATE_TEST_SUITE_P(Module, StageFile, testing::ValuesIn(Stages), [](const auto& Info) { return std::string(Info.param.Name); });

TEST(Module, StartsInIdleAndCancelsAtItsEnd)
{
	FTestProject Project;
	std::string Lines;
	FScriptedTransport Wire;
	{
		const FRunningModule Module;
		EXPECT_EQ(FAgent::Get().GetState(), EAgentState::Idle);
		EXPECT_TRUE(FKestrinInterface::Get().IsInitialized());
		EXPECT_TRUE(FKestrinInterface::Get().IsPluginEnabled());
		const TArray<FSettingsEntry> Pages = FHostSettings::GetSections();
		ASSERT_EQ(Pages.Num(), 1);
		EXPECT_EQ(ToUtf8(Pages[0].Container.ToString() + TEXT("/") + Pages[0].Category.ToString()), "Project/Plugins");
		EXPECT_EQ(ToUtf8(Pages[0].Section->GetDescription().ToString()), "Configure My Plugin settings");
		FKestrinInterface::Get().InitialRequest(TEXT("x"));
		FKestrinInterface::Get().OnAddStatusMessageDelegate.BindLambda(
			[&Lines](FString Text, FLinearColor, FName, float) { Lines += ToUtf8(Text); });
	}
	FKestrinInterface::Get().OnAddStatusMessageDelegate.Unbind();
	EXPECT_EQ(Lines, " [ Cancelled ]");
	EXPECT_TRUE(FHostSettings::GetSections().IsEmpty());
	EXPECT_EQ(FAgent::Get().GetState(), EAgentState::Idle);
	EXPECT_FALSE(FKestrinInterface::Get().IsInitialized());
	EXPECT_EQ(ToUtf8(FKestrinInterface::Get().GetVersion()), "1.0.0");
}

/** A menu's entries as "section/entry label (tool tip) icon small icon". */
std::vector<std::string> Entries(const char* Menu)
{
	std::vector<std::string> Result;
	for (const FToolMenuSection& Section : UToolMenus::Get()->ExtendMenu(Menu)->Sections)
	{
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			const FSlateIcon Icon = Entry.Icon.Get();
			Result.push_back(ToUtf8(Section.Name.ToString() + TEXT("/") + Entry.Name.ToString() + TEXT(" ") + Entry.GetLabel().ToString() +
				TEXT(" (") + Entry.GetToolTip().ToString() + TEXT(") ") + Icon.GetStyleName().ToString() + TEXT(" ") +
				Icon.GetSmallStyleName().ToString()));
		}
	}
	return Result;
}

TEST(Module, CanBeOpenedFromMenuAndToolBarWhileItIsThere)
{
	const char* const WindowMenu = "LevelEditor.MainMenu.Window";
	const char* const ToolBar = "LevelEditor.LevelEditorToolBar.PlayToolBar";
	using Lines = std::vector<std::string>;
	const FTestProject Project;
	const TSharedRef<FGlobalTabmanager> Tabs = FGlobalTabmanager::Get();
	{
		const FRunningModule Module;
		FMainLoop::Tick();
		EXPECT_EQ(Entries(WindowMenu), Lines{ "WindowLayout/Kestrin Kestrin (Bring up Kestrin window) Kestrin.Icon Kestrin.Icon.Large" });
		EXPECT_EQ(Entries(ToolBar), Lines{ "Kestrin/LevelToolbarKestrin Kestrin (Kestrin) Kestrin.Icon Kestrin.Icon.Large" });
		for (const char* const Menu : { WindowMenu, ToolBar })
		{
			EXPECT_FALSE(Tabs->FindExistingLiveTab(FName("Kestrin")).IsValid());
			EXPECT_TRUE(UToolMenus::Get()->ExtendMenu(Menu)->Sections[0].Blocks[0].TryExecute());
			EXPECT_TRUE(Tabs->FindExistingLiveTab(FName("Kestrin")).IsValid());
			Tabs->CloseAllTabs();
		}
	}
	EXPECT_EQ(Entries(WindowMenu), Lines());
	EXPECT_EQ(Entries(ToolBar), Lines());
	EXPECT_FALSE(Tabs->TryInvokeTab(FName("Kestrin")).IsValid());
}

TEST(Module, HasItsIconsWhereItsFolderIsKnown)
{
	for (const bool bFound : { false, true })
	{
		SCOPED_TRACE(bFound);
		const FTestProject Project;
		if (bFound)
		{
			Project.Write("Plugins/kestrin-unreal/Kestrin.uplugin", R"({"FileVersion":3})");
		}
		IPluginManager::Get().RefreshPluginsList();
		const FRunningModule Module;
		EXPECT_TRUE(FKestrinInterface::Get().IsInitialized());
		const ISlateStyle* const Style = FSlateStyleRegistry::FindSlateStyle("KestrinStyle");
		ASSERT_EQ(Style != nullptr, bFound);
		const double Sizes[] = { 16.0, 40.0 };
		for (const double Size : Sizes)
		{
			const FSlateBrush* const Brush = bFound ? Style->GetBrush(Size == 16.0 ? "Kestrin.Icon" : "Kestrin.Icon.Large") : nullptr;
			if (Brush)
			{
				EXPECT_EQ(Brush->GetImageSize(), FVector2D(Size, Size));
				EXPECT_EQ(Brush->GetTint(), FLinearColor::White);
				EXPECT_EQ(ToUtf8(Brush->GetResourceName().ToString()),
					ToUtf8(Project.Dir()) + "Plugins/kestrin-unreal/Resources/PlaceholderButtonIcon.svg");
			}
		}
	}
	IPluginManager::Get().RefreshPluginsList();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("KestrinStyle"), nullptr);
}

TEST(Module, ReloadsImagesWhereSomebodyDraws)
{
	struct FRenderer : FSlateRenderer
	{
		void ReloadTextureResources() override { ++Reloads; }
		int32 Reloads = 0;
	};
	const FTestProject Project;
	const TSharedRef<FRenderer> Renderer = MakeShared<FRenderer>();
	FSlateApplication::Create(Renderer);
	{
		const FRunningModule Module;
		EXPECT_EQ(Renderer->Reloads, 1);
	}
	FSlateApplication::Shutdown();
	const FRunningModule Module;
	EXPECT_EQ(Renderer->Reloads, 1);
}

/** The prompt log's files in a project. */
struct FLogs : FTestProject
{
	const std::string Directory = "Plugins/kestrin-unreal/Logs/";
	void WriteAged(const std::string& Name, int Hours)
	{
		Write(Directory + Name, "x");
		std::filesystem::last_write_time(
			Folder() / (Directory + Name), std::filesystem::file_time_type::clock::now() - std::chrono::hours(Hours));
	}
	bool HasLog(const std::string& Name) const { return Has(Directory + Name); }
};

TEST(PromptLog, TheRetentionRunsAtTheStart)
{
	struct FCase
	{
		EKestrinLogDeletionPolicy Policy;
		bool bOldStays;
		bool bNewStays;
	};
	const FCase Cases[] = {
		{ EKestrinLogDeletionPolicy::DeleteAllOnStart, false, false },
		{ EKestrinLogDeletionPolicy::KeepLast30Days, false, true },
		{ EKestrinLogDeletionPolicy::KeepAll, true, true },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(static_cast<int>(Case.Policy));
		FLogs Project;
		GetMutableDefault<UKestrinSettings>()->LogRetentionPolicy = Case.Policy;
		Project.WriteAged("anything.log", 31 * 24);
		Project.WriteAged("KestrinPrompts_2026-01-01.log", 29 * 24);
		Project.WriteAged("old.txt", 99 * 24);
		Project.WriteAged("sub/old.log", 99 * 24);
		FKestrinInterface::Get().Initialize();
		FKestrinInterface::Get().Initialize();
		EXPECT_EQ(Project.HasLog("anything.log"), Case.bOldStays);
		EXPECT_EQ(Project.HasLog("KestrinPrompts_2026-01-01.log"), Case.bNewStays);
		EXPECT_TRUE(Project.HasLog("old.txt") && Project.HasLog("sub/old.log"));
		FKestrinInterface::Get().Shutdown();
	}
}

TEST(PromptLog, RecordsGoToTheDaysFile)
{
	FLogs Project;
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.Initialize();
	FHostClock::SetDate(FDateTime(2026, 3, 1, 23, 59, 30));
	const FString First = Interface.GetPromptLogFilePath();
	std::filesystem::remove_all(Project.Folder() / Project.Directory);
	Interface.KestrinInterfaceLogString(TEXT("100% \u00E4 %s"), First, true);
	Interface.KestrinInterfaceLogString(TEXT("plain"), First, false);
	const std::string Text = ToUtf8(First);
	EXPECT_EQ(Text.substr(Text.size() - 29), "KestrinPrompts_2026-03-01.log") << "the test runs in UTC";
	EXPECT_EQ(Project.Read(Project.Directory + "KestrinPrompts_2026-03-01.log"), "\xEF\xBB\xBF\n[23:59:30] 100% \xC3\xA4 %s\n\nplain\n");
	FHostClock::SetDate(FDateTime(2026, 3, 2, 0, 0, 1));
	EXPECT_NE(ToUtf8(Interface.GetPromptLogFilePath()), Text);
	FHostClock::ClearDate();
	Interface.Shutdown();
}
}
