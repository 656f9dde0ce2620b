#pragma once

#include "ModuleDescriptor.h"

/** What a .uproject file says. */
struct PROJECTS_API FProjectDescriptor
{
	/** The engine that the project is for, for instance "5.5". */
	FString EngineAssociation;
	FString Description;
	TArray<FModuleDescriptor> Modules;

	/** @param OutFailReason on failure names the file and what is wrong with it */
	bool Load(const FString& FileName, FText& OutFailReason);
};
