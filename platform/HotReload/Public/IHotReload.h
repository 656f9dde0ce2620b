#pragma once

// HotReload: compiles the project's C++ modules in the background and puts them in place when that is done.
//
// Left out: reloading of single packages, the recompile of modules by name.

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Misc/CompilationResult.h"
#include "Misc/EnumClassFlags.h"
#include "Modules/ModuleManager.h"

enum class EHotReloadFlags : uint32
{
	None = 0,
	/** The build goes on in the background all the same: the event is raised when its modules are in place. */
	WaitForCompletion = 1 << 0,
};
ENUM_CLASS_FLAGS(EHotReloadFlags)

/** Game thread. */
class IHotReloadInterface : public IModuleInterface
{
public:
	static IHotReloadInterface& Get() { return FModuleManager::LoadModuleChecked<IHotReloadInterface>("HotReload"); }
	static IHotReloadInterface* GetPtr() { return FModuleManager::GetModulePtr<IHotReloadInterface>("HotReload"); }
	static bool IsAvailable() { return FModuleManager::Get().IsModuleLoaded("HotReload"); }

	/** The compiler's lines, how it ended, and whether the log should be shown to the user. Raised by the main loop. */
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FModuleCompilerFinishedEvent, const FString&, ECompilationResult::Type, bool);
	virtual FModuleCompilerFinishedEvent& OnModuleCompilerFinished() = 0;

	/** Whether a compile is at work, of this module or of another one that compiles the project. */
	virtual bool IsCurrentlyCompiling() const = 0;
	/** @return Unknown: the event tells; or Canceled, when another compile is at work, with no event */
	virtual ECompilationResult::Type DoHotReloadFromEditor(EHotReloadFlags InFlags) = 0;
};
