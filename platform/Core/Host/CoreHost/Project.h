#pragma once

#include "Containers/UnrealString.h"

/** Which project is open; FPaths and FApp follow. Game thread. */
struct CORE_API FHostProject
{
	/** @param File the .uproject file, absolute or relative to FPlatformProcess::BaseDir; empty for none */
	static void Set(const FString& File);
	/**
	 * Where FPaths::EngineDir is from now on. Without it, it is "kestrin/Engine/" in the user's state directory, as
	 * XDG_STATE_HOME or HOME tell it, or "kestrin/Engine-2/" and so on while other editors run.
	 */
	static void SetEngineDir(const FString& Directory);
};
