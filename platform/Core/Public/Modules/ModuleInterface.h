#pragma once

#include "CoreTypes.h"

/** What a module does when it is loaded and when it is unloaded. Game thread. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;

	/** Called right after the module was loaded; it may load others. */
	virtual void StartupModule() {}
	/** Called before the module's object goes; modules that were loaded before this one are still there. */
	virtual void ShutdownModule() {}
	/** Whether the module holds gameplay code. */
	virtual bool IsGameModule() const { return false; }
};
