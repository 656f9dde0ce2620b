#include "Kestrin.h"

#include "API/HTTPAPI.h"
#include "Agent/Agent.h"
#include "Agent/FileUtils/FileRewrite.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/PlatformFileManager.h"
#include "ISettingsModule.h"
#include "KestrinSettings.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ToolMenus.h"
#include "Widget/Style.h"
#include "Widget/Widget.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FKestrinModule"

DEFINE_LOG_CATEGORY(LogKestrin);

namespace
{
const FName SettingsContainer(TEXT("Project"));
const FName SettingsCategory(TEXT("Plugins"));
const FName SettingsSection(TEXT("Kestrin"));
const FName TabName(TEXT("Kestrin"));

FSlateIcon GetPluginIcon()
{
	return FSlateIcon(FKestrinStyle::GetStyleSetName(), "Kestrin.Icon", "Kestrin.Icon.Large");
}

void RegisterSettingsPage()
{
	if (ISettingsModule* SettingsModule = FModuleManager::GetModulePtr<ISettingsModule>("Settings"))
	{
		SettingsModule->RegisterSettings(SettingsContainer, SettingsCategory, SettingsSection, LOCTEXT("SettingsName", "Kestrin"),
			LOCTEXT("SettingsDescription", "Configure My Plugin settings"), GetMutableDefault<UKestrinSettings>());
	}
}

void UnregisterSettingsPage()
{
	if (ISettingsModule* SettingsModule = FModuleManager::GetModulePtr<ISettingsModule>("Settings"))
	{
		SettingsModule->UnregisterSettings(SettingsContainer, SettingsCategory, SettingsSection);
	}
}

/** Takes the service's address and key from the project's stage file, when it is there and selects a stage. */
void ReadStageFile()
{
	ApiUrlOverride.Empty();
	ApiKeyOverride.Empty();
	const FString StageFile = FPaths::Combine(FPaths::ProjectConfigDir(), TEXT("DefaultPlugin.ini"));
	if (!FPlatformFileManager::Get().GetPlatformFile().FileExists(*StageFile))
	{
		return;
	}
	FConfigFile Config;
	Config.Read(StageFile);
	FString Stage;
	Config.GetString(TEXT("Kestrin"), TEXT("Stage"), Stage);
	for (const TCHAR* Known : { TEXT("Dev"), TEXT("Sandbox"), TEXT("Sandbox2") })
	{
		if (Stage.Equals(Known, ESearchCase::IgnoreCase))
		{
			Config.GetString(TEXT("Kestrin"), *FString::Printf(TEXT("%sApiUrl"), Known), ApiUrlOverride);
			Config.GetString(TEXT("Kestrin"), *FString::Printf(TEXT("%sApiKey"), Known), ApiKeyOverride);
		}
	}
}
}

void FKestrinModule::StartupModule()
{
	RegisterSettingsPage();
	ReadStageFile();
	RestoreInterruptedRewrites();
	FKestrinStyle::Initialize();
	FKestrinCommands::Register();
	PluginCommands = MakeShared<FUICommandList>();
	PluginCommands->MapAction(FKestrinCommands::Get().OpenPluginWindow, FExecuteAction::CreateRaw(this, &FKestrinModule::OpenTab));
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FKestrinModule::RegisterMenus));
	FGlobalTabmanager::Get()
		->RegisterNomadTabSpawner(TabName, FOnSpawnTab::CreateRaw(this, &FKestrinModule::SpawnTab))
		.SetDisplayName(LOCTEXT("FKestrinTabTitle", "Kestrin"))
		.SetMenuType(ETabSpawnerMenuType::Hidden)
		.SetIcon(FSlateIcon(FKestrinStyle::GetStyleSetName(), "Kestrin.Icon"));
	FAgent::Get().SetState(EAgentState::Idle);
}

void FKestrinModule::ShutdownModule()
{
	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);
	FKestrinStyle::Shutdown();
	FKestrinCommands::Unregister();
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(TabName);
	UnregisterSettingsPage();
}

void FKestrinModule::RegisterMenus()
{
	const FToolMenuOwnerScoped OwnerScoped(this);
	const TSharedPtr<FUICommandInfo>& Command = FKestrinCommands::Get().OpenPluginWindow;

	UToolMenu* const WindowMenu = UToolMenus::Get()->ExtendMenu("LevelEditor.MainMenu.Window");
	WindowMenu->FindOrAddSection("WindowLayout")
		.AddMenuEntryWithCommandList(
			Command, PluginCommands, TAttribute<FText>(), TAttribute<FText>(), GetPluginIcon(), NAME_None, FName(TEXT("Kestrin")));

	UToolMenu* const ToolBar = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar.PlayToolBar");
	const FText Label = LOCTEXT("Kestrin_Override", "Kestrin");
	FToolMenuEntry Button =
		FToolMenuEntry::InitToolBarButton(Command, Label, Label, GetPluginIcon(), NAME_None, FName(TEXT("LevelToolbarKestrin")));
	Button.SetCommandList(PluginCommands);
	ToolBar->FindOrAddSection("Kestrin").AddEntry(Button);
}

void FKestrinModule::OpenTab()
{
	FGlobalTabmanager::Get()->TryInvokeTab(TabName);
}

TSharedRef<SDockTab> FKestrinModule::SpawnTab(const FSpawnTabArgs& SpawnTabArgs)
{
	return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(SKestrinWidget)];
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FKestrinModule, Kestrin)
