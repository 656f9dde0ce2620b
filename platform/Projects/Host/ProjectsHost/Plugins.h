#pragma once

#include "Interfaces/IPluginManager.h"

/** How the editor tells the plug-in manager what there is. */
struct PROJECTS_API FHostPlugins
{
	/** The folders below Root that hold a .uplugin file, in name order; what lies inside such a folder is not looked at. */
	static TArray<FString> FindFolders(const FString& Root);
	/** Adds the plug-in of that folder, before those added earlier and the project's. Null, with the reason, when it can't be read. */
	static TSharedPtr<IPlugin> Add(const FString& Folder, FText& OutFailReason);
};
