#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"

/** What a project's module is built with. */
struct FToolchain
{
	/** A module of the editor, with all that its headers need. */
	struct FEngineModule
	{
		TArray<FString> Includes;
		TArray<FString> Definitions;
		FString Library;
	};

	/** Reads the file that lies beside the editor's libraries, and looks for the tools. @return false with an error */
	bool Load(FString& OutError);

	/** That file. */
	FString File;
	FString Compiler;
	/** What runs the compiler, for instance "ccache"; from the environment, mostly empty. */
	TArray<FString> Launcher;
	TArray<FString> CompileFlags;
	TArray<FString> LinkFlags;
	/** ".gch" or ".pch". */
	FString PrecompiledSuffix;
	FString HeaderTool;
	FString Ninja;
	/** Where the editor's libraries are. */
	FString LibraryDirectory;
	/** What libraries' names have before the module's. */
	FString ModulePrefix;
	TMap<FString, FEngineModule> Modules;
};
