#include "Modules/ModuleManager.h"
#include "ModuleEvents.h"

namespace
{
class FSecondModule final : public FDefaultGameModuleImpl
{
	void StartupModule() override { ReportModuleEvent(TEXT("Second starts")); }
	void ShutdownModule() override { ReportModuleEvent(TEXT("Second ends")); }
};
}

IMPLEMENT_PRIMARY_GAME_MODULE(FSecondModule, Second, "Second")
