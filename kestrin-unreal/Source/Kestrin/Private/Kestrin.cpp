#include "Kestrin.h"

#include "API/HTTPAPI.h"
#include "Agent/Agent.h"
#include "Agent/FileUtils/FileRewrite.h"
#include "Agent/KestrinInterface.h"
#include "HAL/PlatformFileManager.h"
#include "ISettingsModule.h"
#include "KestrinSettings.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

#define LOCTEXT_NAMESPACE "FKestrinModule"

DEFINE_LOG_CATEGORY(LogKestrin);

namespace
{
const FName SettingsContainer(TEXT("Project"));
const FName SettingsCategory(TEXT("Plugins"));
const FName SettingsSection(TEXT("Kestrin"));

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
	FKestrinInterface::Get().Initialize();
	FAgent::Get().SetState(EAgentState::Idle);
}

void FKestrinModule::ShutdownModule()
{
	FKestrinInterface::Get().Shutdown();
	UnregisterSettingsPage();
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FKestrinModule, Kestrin)
