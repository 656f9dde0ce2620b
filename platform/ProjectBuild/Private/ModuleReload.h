#pragma once

#include "BuildLog.h"

/** A module that a build has made. */
struct FBuiltModule
{
	FString Name;
	FString Library;
	/** The project's descriptor names it, so it is started. */
	bool bStarted;
};

/**
 * Loads new libraries and puts their types and modules in the place of the old ones. Game thread.
 * @param Modules each behind those that it needs
 * @return false, with the reasons in the log and all as it was, when that can't be done
 */
bool ReloadModules(const TArray<FBuiltModule>& Modules, FBuildLog& Log);
