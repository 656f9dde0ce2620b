#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

DECLARE_LOG_CATEGORY_EXTERN(LogKestrin, Log, All);

class FUICommandList;

/** The editor module. Brings up the settings page, the service's address, the interface, menus and the chat's tab, and last the agent. */
class FKestrinModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	void RegisterMenus();
	void OpenTab();
	TSharedRef<class SDockTab> SpawnTab(const class FSpawnTabArgs& SpawnTabArgs);

	TSharedPtr<FUICommandList> PluginCommands;
};
