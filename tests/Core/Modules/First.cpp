#include "Modules/ModuleManager.h"
#include "ModuleEvents.h"

namespace
{
class FFirstModule final : public IModuleInterface
{
	void StartupModule() override
	{
		// Loads another while it starts itself.
		FModuleManager::LoadModuleChecked<IModuleInterface>("Second");
		ReportModuleEvent(TEXT("First starts"));
	}
	void ShutdownModule() override { ReportModuleEvent(TEXT("First ends")); }
};
}

IMPLEMENT_MODULE(FFirstModule, First)
