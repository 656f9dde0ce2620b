#pragma once

#include "ProjectSources.h"
#include "Toolchain.h"

/** The instructions for ninja, and what they make. */
struct FBuildFile
{
	FBuildFile(const FString& ProjectDirectory, const FProjectSources& InSources, const FToolchain& InToolchain);

	/** The library of a module: numbered, for each build that changes something makes new ones. */
	FString GetLibrary(const FString& Module, int32 Number) const;
	/** The one that the project's next start loads. */
	FString GetStartLibrary(const FString& Module) const;
	/** The number that the instructions on disk were written for; 0 when there are none. */
	int32 ReadNumber() const;
	/** One above those of all libraries that there are. */
	int32 GetNextNumber() const;
	/** Writes the instructions, unless they are there already. @return false when that fails */
	bool Write(int32 Number) const;
	/** Deletes the project's numbered libraries but those of one number. */
	void DeleteLibraries(int32 ExceptNumber) const;

	/** Where ninja runs. */
	FString Directory;

private:
	FString MakeText(int32 Number) const;
	FString MakeModule(const FModuleSources& Module, int32 Number) const;
	FString MakeFlags(const FModuleSources& Module) const;
	/** The project's own modules that a module depends on, also through others. */
	TArray<const FModuleSources*> GetOwnDependencies(const FModuleSources& Module) const;
	/** The files of all numbered libraries, with their numbers. */
	TArray<TPair<FString, int32>> FindNumbered() const;

	FString Binaries;
	const FProjectSources& Sources;
	const FToolchain& Toolchain;
};
