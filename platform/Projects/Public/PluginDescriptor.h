#pragma once

#include "ModuleDescriptor.h"

/** What a .uplugin file says. */
struct PROJECTS_API FPluginDescriptor
{
	FString VersionName;
	FString FriendlyName;
	FString Description;
	TArray<FModuleDescriptor> Modules;

	/** @param OutFailReason on failure names the file and what is wrong with it; may be null */
	bool Load(const FString& FileName, FText* OutFailReason = nullptr);
};
