#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** A module of the project: what lies in the folder of its Build.cs. Paths are full. */
struct FModuleSources
{
	FString Name;
	FString Root;
	FString RulesFile;
	/** As its Build.cs names them. */
	TArray<FString> Dependencies;
	TArray<FString> CppFiles;
	/** Those that include their own .generated.h. */
	TArray<FString> ReflectedHeaders;
};

struct FProjectSources
{
	/** A module comes behind those of the project that it depends on. */
	TArray<FModuleSources> Modules;

	/** Reads what lies below a project's folder. @return false with an error when it can't be built; no modules are none */
	bool Find(const FString& ProjectDirectory, FString& OutError);
};

/** The names in the lists of dependencies of a Build.cs. */
TArray<FString> ReadDependencies(const FString& Rules);
