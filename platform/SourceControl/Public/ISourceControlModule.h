#pragma once

// SourceControl: the project's revision control. A project that lies in a git repository has the provider "Git", every other one "None",
// which is not enabled. States are asked of git each time. Additions, their reverts and deletions are staged in git's index, nothing
// else of the repository changes.
//
// Left out: commits, histories, labels, changelists, submodules (they are repositories of their own), operations in the background,
// the choice of a provider by the user.

#include "ISourceControlProvider.h"
#include "Modules/ModuleManager.h"

/** Game thread. */
class ISourceControlModule : public IModuleInterface
{
public:
	/** Loads the module when it is not loaded. */
	static ISourceControlModule& Get() { return FModuleManager::LoadModuleChecked<ISourceControlModule>("SourceControl"); }

	/** Whether there is a provider beside "None". */
	virtual bool IsEnabled() const = 0;
	/** The open project's; it may be another one after a project was opened, or a repository made. */
	virtual ISourceControlProvider& GetProvider() const = 0;
};
