#include "Modules/ModuleManager.h"

// Defined nowhere.
void KestrinMissingSymbol();

namespace
{
class FMissingSymbolModule final : public IModuleInterface
{
	void StartupModule() override { KestrinMissingSymbol(); }
};
}

IMPLEMENT_MODULE(FMissingSymbolModule, MissingSymbol)
