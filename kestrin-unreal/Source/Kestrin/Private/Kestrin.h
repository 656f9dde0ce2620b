#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

DECLARE_LOG_CATEGORY_EXTERN(LogKestrin, Log, All);

/** The editor module. Brings up the settings page, the service's address and the interface, and last the agent. */
class FKestrinModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
};
